#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "environment/folders.h"
#include "environment/format_text.h"
#include "environment/live_preview_flag.h"
#include "environment/platform_calls.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

#ifdef _WIN32
constexpr char kSlash = '\\';
#else
constexpr char kSlash = '/';
#endif

// With the separators of this platform.
std::string Native(std::string path) {
  for (char& c : path) {
    if (c == '|') c = kSlash;
  }
  return path;
}

TEST(Folders, AreCutFromTheModulesNameByItsUsualLength) {
  const struct {
    const char* module;
    const char* folder;
  } kModules[] = {
      {"C:|Plug-ins|TarnikStudi.8bf", "C:|Plug-ins|"},
      {"C:|Plug-ins|tarnikstudi.8BF", "C:|Plug-ins|"},
      // Ten characters more, and ten characters less, than it should have.
      {"C:|Plug-ins|Copy_of_8_TarnikStudi.8bf", "C:|Plug-ins|Copy_of_8_"},
      {"C:|Plug-ins|T.8bf", "C:"},
  };
  for (const auto& c : kModules) {
    const Folders folders = FoldersOf(Native(c.module));
    const std::string base = Native(c.folder);
    EXPECT_EQ(folders.modulePath, base);
    EXPECT_EQ(folders.dataFolder, base + "Tarnwick Studio");
    EXPECT_EQ(folders.helpFolder, base + Native("Tarnwick Studio|Help|"));
    EXPECT_EQ(folders.presetFolder, base + Native("Tarnwick Studio|Presets|"));
    EXPECT_EQ(folders.colorFolder, base + Native("Tarnwick Studio|Presets|Colors"));
    EXPECT_EQ(folders.backPaletteFolder, base + Native("Tarnwick Studio|Presets|BackPalette|"));
  }
  // "|Tarnwick Studio|Presets|BackPalette|" has 37 characters, the first of them the
  // separator that ends the folder: 1023 is the longest that is used.
  const std::string fits = std::string(986, 'x') + kSlash;
  EXPECT_EQ(FoldersOf(fits + kModuleFileName).modulePath, fits);
  EXPECT_EQ(FoldersOf('x' + fits + kModuleFileName).modulePath, "");
  EXPECT_EQ(FoldersOf("a.8bf").modulePath, "");
}

TEST(FormatText, TakesAnyLength) {
  EXPECT_EQ(FormatText("%d%%", 33), "33%");
  EXPECT_EQ(FormatText("%s", ""), "");
  const std::string longText(5000, 'x');
  EXPECT_EQ(FormatText("<%s>", longText.c_str()), '<' + longText + '>');
}

TEST(LivePreviewFlag, IsOffUntilItIsSavedOn) {
#ifndef _WIN32
  const testing::TempFolder folder;
  setenv("XDG_CONFIG_HOME", (folder.Path() + "/made/by it").c_str(), 1);
  EXPECT_FALSE(LoadLivePreviewFlag());
#endif
  for (const bool isOn : {true, false, true, false}) {
    SaveLivePreviewFlag(isOn);
    EXPECT_EQ(LoadLivePreviewFlag(), isOn);
  }
#ifndef _WIN32
  setenv("XDG_CONFIG_HOME", "/proc/no place to write", 1);
  SaveLivePreviewFlag(true);
  EXPECT_FALSE(LoadLivePreviewFlag());
#endif
}

TEST(Platform, KnowsThisProgramAsItsModule) {
  EXPECT_NE(ModuleFileName().find("tarnwick_environment_tests"), std::string::npos);
  EXPECT_NE(OwnModuleHandle(), nullptr);
}

}  // namespace
}  // namespace tarnwick
