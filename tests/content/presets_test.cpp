// Files of the presets that come with the program.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>

#include "builder/texture_recipe.h"
#include "presets/color_list.h"
#include "presets/preset_check.h"
#include "presets/preset_writer.h"
#include "settings/ascii_text.h"
#include "shipped_presets.h"

namespace tarnwick::content {
namespace {

// The kind whose form a folder's files have.
PresetKind FormOf(const std::string& folder) {
  static const std::map<std::string, PresetKind> kForms = {
      {"Basic", PresetKind::kUser},          {"Wash", PresetKind::kWash},
      {"Surface", PresetKind::kSurface},     {"Background", PresetKind::kBackground},
      {"Colors", PresetKind::kSurfaceColor}, {"BackPalette", PresetKind::kBackground},
  };
  const auto found = kForms.find(folder);
  EXPECT_NE(found, kForms.end()) << folder << " is no folder of presets";
  return found == kForms.end() ? PresetKind::kBasic : found->second;
}

// "rgtC Empty" is what the writer knows of categories.
std::string WithoutCategory(std::string text) {
  const std::size_t from = text.find("rgtC ");
  if (from == std::string::npos) return text;
  const std::size_t to = text.find(" \t\t\t\t;", from);
  return text.replace(from, to - from, "rgtC Empty");
}

TEST(Presets, EachFolderHasSomethingToShow) {
  std::map<std::string, int> counts;
  std::set<std::string> names;
  for (const Shipped& preset : ShippedPresets()) {
    ++counts[preset.folder];
    EXPECT_TRUE(names.insert(AsciiLowered(preset.name)).second) << preset.name << " is ambiguous";
    EXPECT_LT(preset.name.size(), 64U) << preset.name << " is longer than a name shown may be";
    EXPECT_TRUE(std::ranges::all_of(preset.name, [](char c) { return c >= ' ' && c <= '~'; }));
  }
  EXPECT_GE(counts["Basic"], 60);
  for (const char* folder : {"Wash", "Surface"}) EXPECT_GE(counts[folder], 30) << folder;
  EXPECT_GE(counts["Background"], 24);
  EXPECT_GE(counts["Colors"], 90);
  // The filmstrip's "none" is one of them, but no palette.
  EXPECT_GE(counts["BackPalette"], 25);
  EXPECT_TRUE(names.contains(kNoPaletteName));
}

TEST(Presets, HaveNoFaultsAndKnownTextures) {
  std::set<std::string> textures;
  for (const TextureRecipe& recipe : AllTextures()) textures.insert(TextureFileName(recipe));
  for (const Shipped& preset : ShippedPresets()) {
    SCOPED_TRACE(preset.name);
    const PresetReport report = CheckPreset(preset.bytes);
    for (const PresetFault& fault : report.faults)
      ADD_FAILURE() << fault.line << ": " << fault.text;
    for (const PresetTexture& texture : report.textures) {
      EXPECT_TRUE(textures.contains(texture.name)) << texture.line << ": " << texture.name;
    }
  }
}

// A texture that no look uses is found by nobody.
TEST(Presets, UseNearlyEveryTexture) {
  std::set<std::string> unused;
  for (const TextureRecipe& recipe : AllTextures()) unused.insert(TextureFileName(recipe));
  const std::size_t all = unused.size();
  for (const Shipped& preset : ShippedPresets()) {
    if (preset.folder == "Background" || preset.folder == "BackPalette") continue;
    for (const PresetTexture& texture : CheckPreset(preset.bytes).textures) {
      unused.erase(texture.name);
    }
  }
  EXPECT_LE(unused.size(), all / 20) << ::testing::PrintToString(unused);
}

// A line lost in editing would leave what the preset before it had set.
TEST(Presets, AreWrittenBackAsTheyAre) {
  for (const Shipped& preset : ShippedPresets()) {
    Look look = LookOf(preset);
    EXPECT_EQ(PresetText(FormOf(preset.folder), look.settings, look.session),
              WithoutCategory(preset.bytes))
        << preset.name;
  }
}

// The filmstrip shows a tone of a lower weight black.
TEST(Presets, PalettesShowAllTheirTones) {
  for (const Shipped& preset : ShippedPresets()) {
    if (preset.folder != "BackPalette") continue;
    const EffectSettings look = LookOf(preset).settings;
    EXPECT_EQ(look.BackgroundUse, preset.name == kNoPaletteName ? 0 : 1) << preset.name;
    if (look.BackgroundUse == 0) continue;
    EXPECT_EQ(look.BackgroundHighlight, 100) << preset.name;
    EXPECT_EQ(look.BackgroundMidtone, 100) << preset.name;
    EXPECT_EQ(look.BackgroundShadow, 100) << preset.name;
  }
}

}  // namespace
}  // namespace tarnwick::content
