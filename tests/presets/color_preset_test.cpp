#include "presets/color_preset.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "presets/preset_writer.h"
#include "settings/settings_changes.h"

namespace tarnwick {
namespace {

using ::testing::UnorderedElementsAre;

const std::string kAutumn =
    "TarnwickStudi Press Preset;\n"
    "Version 2;\n"
    ";------Color Preset------\n"
    "rgtC Red Tones|Brown Tones \t\t\t\t;Preset Category \n"
    "lCiH 1 \t\t\t\t;Hightlight Color\n"
    "lCdM 2 \t\t\t\t;Midtone Color\n"
    "lCdS 3 \t\t\t\t;Shadow Color\n";

TEST(ColorPreset, Categories) {
  const struct {
    std::string bytes;
    bool found;
    const char* category;
  } kFiles[] = {
      {kAutumn, true, "Red Tones|Brown Tones"},
      {"a\nb\nc\n  rgtC  Empty  \n", true, "Empty"},
      {"a\nb\nc\nrgtC\n", true, ""},
      {"a\nb\nc\nrgtC Empty", false, "before"},
      {"a\nb\nrgtC Empty\n", false, "before"},
      {"a\nb\nrgtC Empty\nlCiH 1\n", false, "before"},
      {"a\r\nb\r\nc\r\nrgtC Empty\n", false, "before"},  // seven lines to the reader
  };
  for (const auto& c : kFiles) {
    std::string category = "before";
    EXPECT_EQ(ReadColorCategory(c.bytes, category), c.found) << c.bytes;
    EXPECT_EQ(category, c.category) << c.bytes;
  }
}

TEST(ColorPreset, Tones) {
  ColorPreset colors;
  ASSERT_EQ(ReadColorPreset(kAutumn, colors), PresetLoad::kLoaded);
  EXPECT_EQ(colors.highlight, 1u);
  EXPECT_EQ(colors.midtone, 2u);
  EXPECT_EQ(colors.shadow, 3u);
  EXPECT_EQ(colors.category, "Red Tones|Brown Tones");

  const std::string head = "TarnwickStudi Press Preset;\n";
  EXPECT_EQ(ReadColorPreset("lCiH 1\n", colors), PresetLoad::kNotAPreset);
  EXPECT_EQ(ReadColorPreset(head + "1cSW 1\n", colors), PresetLoad::kNoColors);
  EXPECT_EQ(LoadColorPreset("no such file", colors), PresetLoad::kCannotOpen);
  EXPECT_EQ(colors.highlight, 1u);

  ASSERT_EQ(ReadColorPreset(head + "lCdS 9\n1cSW 1\n", colors), PresetLoad::kLoaded);
  EXPECT_EQ(colors.highlight, 0u);
  EXPECT_EQ(colors.shadow, 9u);
  EXPECT_EQ(colors.category, "");
}

TEST(ColorPreset, Uses) {
  const ColorPreset colors{0x0000FF, 0x00FF00, 0xFF0000, "Red Tones"};
  const SettingsPair fresh = DefaultSettings();
  SettingsPair pair = fresh;
  UseAsSurfaceColors(colors, "Autumn", pair.settings, pair.session);
  EXPECT_THAT(Changes(fresh, pair),
              UnorderedElementsAre("SurfaceHighlightColor #ff0000", "SurfaceMidtoneColor #00ff00",
                                   "SurfaceShadowColor #0000ff", "SurfaceColorCategory Autumn"));
  pair = fresh;
  UseAsBackgroundColors(colors, std::string(70, 'a'), pair.settings, pair.session);
  EXPECT_THAT(
      Changes(fresh, pair),
      UnorderedElementsAre("BackgroundHighlightColor #ff0000", "BackgroundMidtoneColor #00ff00",
                           "BackgroundShadowColor #0000ff",
                           "BackgroundColorCategory " + std::string(63, 'a')));
}

}  // namespace
}  // namespace tarnwick
