#include "textures/palette_cell.h"

#include <gtest/gtest.h>

#include "settings/settings_access.h"
#include "support/temp_folder.h"
#include "support/wash_bytes.h"

namespace tarnwick::testing {
namespace {

// Shadow (10, 20, 30), midtone (100, 120, 140), highlight (250, 240, 230), in the
// 32-bit floats of the rule: at 50 the shadow has 0.6983409, at 200 the highlight
// 0.3837536.
EffectSettings Palette() {
  EffectSettings settings;
  settings.BackgroundShadowColor = 0x1E140A;
  settings.BackgroundMidtoneColor = 0x8C7864;
  settings.BackgroundHighlightColor = 0xE6F0FA;
  settings.BackgroundHighlight = settings.BackgroundMidtone = settings.BackgroundShadow = 100;
  return settings;
}

Bytes Colored(const EffectSettings& settings, std::uint8_t grey) {
  ThumbnailPicture picture(1, 1);
  picture.samples = {grey, grey, grey};
  ColorPaletteCell(settings, picture);
  return picture.samples;
}

TEST(PaletteCell, TonesAndWeights) {
  const struct {
    const char* name;
    std::int32_t highlight, shadow;
    std::uint8_t invert, grey;
    Bytes want;
  } kCells[] = {
      {"black is the shadow", 100, 100, 0, 0, {10, 20, 30}},
      {"between", 100, 100, 0, 50, {37, 50, 63}},
      {"just below 0.65", 100, 100, 0, 165, {99, 119, 139}},
      {"just above", 100, 100, 0, 166, {100, 120, 140}},
      {"light", 100, 100, 0, 200, {157, 166, 174}},
      {"white is the highlight", 100, 100, 0, 255, {250, 240, 230}},
      {"inverted", 100, 100, 1, 205, {37, 50, 63}},
      {"a weight of 99 is none", 100, 99, 0, 50, {30, 36, 42}},
      {"nor is this one", 99, 100, 0, 200, {61, 73, 86}},
      {"black, not below it", 0, 100, 0, 255, {0, 0, 0}},
  };
  for (const auto& c : kCells) {
    EffectSettings settings = Palette();
    settings.BackgroundHighlight = c.highlight;
    settings.BackgroundShadow = c.shadow;
    settings.BackgroundInvert = c.invert;
    EXPECT_EQ(Colored(settings, c.grey), c.want) << c.name;
  }
}

TEST(PaletteCell, HueAndSaturation) {
  EffectSettings settings = Palette();
  // No saturation: a lightness of (200 * 240 + 255) / 510 = 94 of 240, so 99.
  settings.BackgroundShadowColor = 0x0064C8;
  settings.BackgroundMidtone = 0;
  EXPECT_EQ(Colored(settings, 0), (Bytes{99, 99, 99}));
  // 127 of 240 on from red: a cyan, whose green is (198 * 255 + 120) / 240.
  settings.BackgroundShadowColor = 0x0000FF;
  settings.BackgroundMidtone = 100;
  settings.BackgroundHue = 100;
  EXPECT_EQ(Colored(settings, 0), (Bytes{0, 210, 255}));
}

TEST(PaletteCell, IsMadeOfTheBackgroundsTexture) {
  const TempFolder folder;
  folder.Put("Pine.twk", GrayWash(2, {0, 0, 0, 0}));
  EffectSettings settings = Palette();
  StoreTextureName(settings.BackgroundFileName, "Pine.twk");
  const auto cell = MakePaletteCell(settings, folder.Path());
  ASSERT_TRUE(cell.has_value());
  EXPECT_EQ(cell->width, 61);
  EXPECT_EQ(cell->height, 61);
  EXPECT_EQ(cell->samples[61 * 61 * 3 - 1], 30);
  StoreTextureName(settings.BackgroundFileName, "Gone.twk");
  EXPECT_FALSE(MakePaletteCell(settings, folder.Path()));
}

}  // namespace
}  // namespace tarnwick::testing
