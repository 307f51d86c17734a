// Files of the presets that come with the program.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>

#include "builder/texture_recipe.h"
#include "presets/color_preset.h"
#include "presets/preset_check.h"
#include "presets/preset_writer.h"
#include "shipped_presets.h"

namespace tarnwick::content {
namespace {

// The kind whose form a folder's files have.
PresetKind FormOf(const std::string& folder) {
  static const std::map<std::string, PresetKind> kForms = {
      {"Basic", PresetKind::kUser},          {"Wash", PresetKind::kWash},
      {"Surface", PresetKind::kSurface},     {"Background", PresetKind::kBackground},
      {"Colors", PresetKind::kSurfaceColor},
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
    EXPECT_TRUE(names.insert(preset.name).second) << preset.name << " is ambiguous";
    EXPECT_LT(preset.name.size(), 64U) << preset.name << " is longer than a name shown may be";
    EXPECT_TRUE(std::ranges::all_of(preset.name, [](char c) { return c >= ' ' && c <= '~'; }));
  }
  EXPECT_GE(counts["Basic"], 5);
  for (const char* folder : {"Wash", "Surface", "Background", "Colors"}) {
    EXPECT_GE(counts[folder], 2) << folder;
  }
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

// A line lost in editing would leave what the preset before it had set.
TEST(Presets, AreWrittenBackAsTheyAre) {
  for (const Shipped& preset : ShippedPresets()) {
    Look look = LookOf(preset);
    EXPECT_EQ(PresetText(FormOf(preset.folder), look.settings, look.session),
              WithoutCategory(preset.bytes))
        << preset.name;
  }
}

TEST(Presets, ColorsAreFiledByTheDrawersCategories) {
  const std::set<std::string> known = {
      "Red Tones",    "Orange Tones",       "Yellow Tones",    "Green Tones",
      "Blue Tones",   "Pink Tones",         "Purple Tones",    "Black and White tones",
      "Brown Tones",  "Cool Tones",         "Dark Tones",      "Light Tones",
      "Medium Tones", "Solid Tones",        "Pastel Tones",    "Vibrant Tones",
      "Warm Tones",   "Atmospheric Tones",  "Ephemeral Tones", "Leather Tones",
      "Metal Tones",  "Paper Tones",        "Rust Tones",      "Plant/Natural Tones",
      "Wood Tones",   "Stone/Mineral Tones"};
  const auto light = [](std::uint32_t word) {
    return (word & 255U) * 2 + (word >> 8U & 255U) * 5 + (word >> 16U & 255U);
  };
  for (const Shipped& preset : ShippedPresets()) {
    if (preset.folder != "Colors") continue;
    SCOPED_TRACE(preset.name);
    ColorPreset colors;
    ASSERT_EQ(ReadColorPreset(preset.bytes, colors), PresetLoad::kLoaded);
    EXPECT_GT(light(colors.highlight), light(colors.midtone));
    EXPECT_GT(light(colors.midtone), light(colors.shadow));
    std::string rest = colors.category + "|";
    for (std::size_t end; (end = rest.find('|')) != std::string::npos; rest.erase(0, end + 1)) {
      EXPECT_TRUE(known.contains(rest.substr(0, end))) << rest.substr(0, end);
    }
  }
}

}  // namespace
}  // namespace tarnwick::content
