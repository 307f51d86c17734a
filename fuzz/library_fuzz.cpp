// Any bytes as the table of sets and as a thumbnail: reading ends, and what was
// read is written and read back the same.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "textures/texture_set_table.h"
#include "textures/thumbnail_file.h"

namespace {

using namespace tarnwick;

std::string OwnPath() {
  const char* const folder = std::getenv("TMPDIR");
  return std::string(folder != nullptr ? folder : "/tmp") + "/library_fuzz-" +
         std::to_string(getpid()) + ".bmp";
}

void TryTable(std::string_view text) {
  std::vector<SetTableFault> faults;
  const TextureSetTable sets = ParseTextureSets(text, faults);
  faults.clear();
  const std::string once = TextureSetText(sets);
  if (TextureSetText(ParseTextureSets(once, faults)) != once || !faults.empty()) std::abort();
}

void TryThumbnail(std::string_view bytes) {
  static const std::string path = OwnPath();
  std::FILE* const file = std::fopen(path.c_str(), "wb");
  if (file == nullptr || std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size()) {
    std::abort();
  }
  std::fclose(file);
  const auto picture = ReadThumbnail(path);
  if (!picture) return;
  if (!WriteThumbnail(path, *picture)) std::abort();
  const auto again = ReadThumbnail(path, {picture->width, picture->height});
  if (!again || again->samples != picture->samples) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  TryTable(bytes);
  TryThumbnail(bytes);
  return 0;
}
