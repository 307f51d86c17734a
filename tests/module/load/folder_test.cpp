// The module where its users may put it: with its data in folders of any name.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "module_path.h"
#include "small_host.h"

namespace tarnwick {
namespace {

// A texture of one black sample: header, then a zlib stream of one stored block, whose
// check sum over a single 0 is 0x00010001.
constexpr unsigned char kBlackTexture[] = {
    '1', 'k', 'w', 't', 1, 0, 0, 0, 1,    0,    0, 0, 1, 0,    0,    0, 0, 0, 0, 0, 0, 0,
    0,   0,   0,   0,   0, 0, 0, 0, 0,    0,    0, 0, 0, 0,    0,    0, 0, 0, 0, 0, 0, 0,
    0,   0,   0,   0,   0, 0, 0, 0, 0x78, 0x01, 1, 1, 0, 0xFE, 0xFF, 0, 0, 1, 0, 1};

// A folder beside the others of its kind, with the module and one texture in it.
class Installed {
 public:
  explicit Installed(const std::string& name) {
    char temp[MAX_PATH] = "";
    GetTempPathA(sizeof temp, temp);
    folder_ = temp + std::string("tarnwick-") + std::to_string(GetCurrentProcessId()) + name;
    data_ = folder_ + "\\Tarnwick Studio";
    file_ = folder_ + "\\TarnikStudi.8bf";
    texture_ = data_ + "\\Schw\xE4rze.twk";
    CreateDirectoryA(folder_.c_str(), nullptr);
    CreateDirectoryA(data_.c_str(), nullptr);
    EXPECT_TRUE(CopyFileA(ModulePath().c_str(), file_.c_str(), FALSE)) << GetLastError();
    std::FILE* const texture = std::fopen(texture_.c_str(), "wb");
    if (texture == nullptr) return;
    std::fwrite(kBlackTexture, 1, sizeof kBlackTexture, texture);
    std::fclose(texture);
  }
  ~Installed() {
    DeleteFileA(texture_.c_str());
    DeleteFileA(file_.c_str());
    RemoveDirectoryA(data_.c_str());
    RemoveDirectoryA(folder_.c_str());
  }
  Installed(const Installed&) = delete;
  Installed& operator=(const Installed&) = delete;

  // The picture after a run; empty if that failed.
  [[nodiscard]] std::vector<std::uint8_t> Stained() const {
    const HMODULE library = LoadLibraryA(file_.c_str());
    if (library == nullptr) return {};
    auto* const entryPoint = reinterpret_cast<EntryPoint*>(
        reinterpret_cast<void*>(GetProcAddress(library, "PluginMain")));
    SmallHost host;
    host.StainBy("Schw\xE4rze.twk");
    const std::int16_t error = host.Run(entryPoint);
    FreeLibrary(library);
    EXPECT_EQ(error, 0);
    return error == 0 ? host.Result() : std::vector<std::uint8_t>();
  }

 private:
  std::string folder_, data_, file_, texture_;
};

TEST(ModuleInAFolder, FindsItsTexturesWhateverTheFolderIsCalled) {
  const std::vector<std::uint8_t> plain = Installed("plain").Stained();
  ASSERT_FALSE(plain.empty());
  EXPECT_TRUE(plain != SmallHost().Original()) << "the texture has no effect";
  EXPECT_TRUE(Installed("\xDC"
                        "bung")
                  .Stained() == plain);
}

}  // namespace
}  // namespace tarnwick
