#include "presets/preset_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "presets/preset_writer.h"
#include "settings/settings_changes.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;

class PresetFile : public ::testing::Test {
 protected:
  void SetUp() override {
    const std::string test = ::testing::UnitTest::GetInstance()->current_test_info()->name();
    folder_ = fs::path(::testing::TempDir()) / ("tarnwick preset " + test);
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  void TearDown() override { fs::remove_all(folder_); }

  fs::path Write(const char* name, const std::string& bytes) const {
    std::ofstream(folder_ / name, std::ios::binary) << bytes;
    return folder_ / name;
  }
  static std::string Read(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_)) {
      names.push_back(entry.path().filename().string());
    }
    return names;
  }

  fs::path folder_;
};

TEST_F(PresetFile, SavesOverAnOldFileAndLoads) {
  SettingsPair saved = DefaultSettings();
  saved.settings.WashScale1 = 42;
  const fs::path path = Write("Mine.twkpst", std::string(100000, 'x'));
  ASSERT_EQ(SavePresetFile(path, PresetKind::kUser, saved.settings, saved.session),
            PresetSave::kSaved);
  EXPECT_EQ(Read(path), PresetText(PresetKind::kUser, saved.settings, saved.session));
  EXPECT_THAT(Names(), ElementsAre("Mine.twkpst"));

  SettingsPair loaded = DefaultSettings();
  PresetSession session(loaded.session);
  ASSERT_EQ(LoadPresetFile(path, loaded.settings, session), PresetLoad::kLoaded);
  EXPECT_THAT(Changes(DefaultSettings(), loaded), ElementsAre("WashScale1 42"));
}

TEST_F(PresetFile, FailuresChangeNothing) {
  const SettingsPair fresh = DefaultSettings();
  fs::create_directory(folder_ / "folder");
  EXPECT_EQ(
      SavePresetFile(folder_ / "none" / "x", PresetKind::kUser, fresh.settings, fresh.session),
      PresetSave::kCannotCreate);
  EXPECT_EQ(SavePresetFile(folder_ / "folder", PresetKind::kUser, fresh.settings, fresh.session),
            PresetSave::kCannotReplace);
  EXPECT_THAT(Names(), ElementsAre("folder"));

  const struct {
    fs::path path;
    PresetLoad outcome;
  } kLoads[] = {
      {folder_ / "none", PresetLoad::kCannotOpen},
      {folder_ / "folder", PresetLoad::kCannotOpen},
      {Write("empty", ""), PresetLoad::kNotAPreset},
      {Write("other", "1cSW 9\n1cSW 9\n"), PresetLoad::kNotAPreset},
      {Write("large", "TarnwickStudi Press Preset;\n1cSW 9\n" + std::string(kMaxPresetBytes, '\n')),
       PresetLoad::kTooLarge},
  };
  for (const auto& c : kLoads) {
    SettingsPair pair = DefaultSettings();
    PresetSession session(pair.session);
    EXPECT_EQ(LoadPresetFile(c.path, pair.settings, session), c.outcome) << c.path;
    EXPECT_EQ(Changes(fresh, pair), std::vector<std::string>()) << c.path;
  }
}

#ifndef _WIN32
TEST_F(PresetFile, SavesThroughALink) {
  const fs::path path = Write("Real.twkpst", "old");
  fs::create_symlink("Real.twkpst", folder_ / "Link.twkpst");
  ASSERT_EQ(SavePresetFile(folder_ / "Link.twkpst", PresetKind::kBasic, {}, {}),
            PresetSave::kSaved);
  EXPECT_TRUE(fs::is_symlink(folder_ / "Link.twkpst"));
  EXPECT_EQ(Read(path), PresetText(PresetKind::kBasic, {}, {}));
}
#endif

TEST(PresetKind, FoldersAndWords) {
  const struct {
    int number;
    const char* folder;
    const char* word;
  } kKinds[] = {
      {0, "Basic", "basic"},
      {1, "Wash", "wash"},
      {2, "Surface", "surface"},
      {3, "Background", "background"},
      {4, "User", "user"},
      {5, "Colors", "surface-color"},
      {6, "Colors", "background-color"},
      {7, "BackPalette", "back-palette"},
      {8, "Basic", "basic"},
  };
  for (const auto& c : kKinds) {
    const auto kind = static_cast<PresetKind>(c.number);
    EXPECT_EQ(PresetFolder(kind), c.folder);
    EXPECT_EQ(PresetKindWord(kind), c.word);
    if (c.number < 8) {
      EXPECT_EQ(PresetKindFromWord(c.word), kind);
    }
  }
  EXPECT_EQ(PresetKindFromWord("USER"), PresetKind::kUser);
  EXPECT_EQ(PresetKindFromWord("users"), std::nullopt);
}

}  // namespace
}  // namespace tarnwick
