// Pixels and places worked out by hand.
#include <gtest/gtest.h>

#include <array>

#include "dialog/cells/cell_places.h"
#include "dialog/cells/tone_cell.h"
#include "dialog/cells/wash_cell.h"

namespace tarnwick {
namespace {

using Rgb = std::array<int, 3>;
using Places = std::vector<std::ptrdiff_t>;

TEST(WashCell, WashesPixelsWorkedOutByHand) {
  const std::array<std::uint8_t, 3> under = {12, 20, 31};
  const struct {
    const char* name;
    WashCellLook look;
    std::uint8_t grey;
    std::array<std::uint8_t, 4> pixel;
    bool hasUnder;
    Rgb want;
  } kCases[] = {
      {"erosion leaves", {0, {9, 9, 9}}, 255, {100, 50, 200, 255}, true, {100, 50, 200}},
      {"erosion uncovers", {0, {9, 9, 9}}, 0, {100, 50, 200, 255}, true, {12, 20, 31}},
      {"erosion down to black", {0, {9, 9, 9}}, 0, {100, 50, 200, 255}, false, {0, 0, 0}},
      // 200 * 128 / 255 = 100.4; at 100: 39.2 + 7.3, 19.6 + 12.2, 78.4 + 18.8
      {"erosion halfway", {0, {9, 9, 9}}, 128, {100, 50, 200, 200}, true, {46, 31, 97}},
      {"erosion halfway over nothing", {0, {}}, 128, {100, 50, 200, 200}, false, {39, 19, 78}},
      {"stain", {1, {255, 128, 0}}, 0, {200, 100, 52, 255}, true, {200, 50, 0}},
      // A fifth of the picture: 40.2 + 20, 0 + 10.4
      {"stain, weaker", {1, {255, 128, 0}}, 51, {200, 100, 52, 255}, true, {200, 60, 10}},
      {"stain leaves", {1, {0, 0, 0}}, 255, {200, 100, 52, 255}, true, {200, 100, 52}},
      // A fifth of 200, 50.2 and 0, four fifths of what is under
      {"stain, transparent", {1, {255, 128, 0}}, 0, {200, 100, 52, 51}, true, {49, 26, 24}},
      // 255 - 155 * 195 / 256 = 136.9, and 213.1; then 82.2 + 40, 127.9 + 80
      {"bleach", {2, {60, 60, 60}}, 0, {100, 100, 200, 255}, true, {136, 136, 213}},
      {"bleach, weaker", {2, {60, 60, 60}}, 102, {100, 100, 200, 255}, true, {122, 122, 207}},
      // 255 - 65025 / 256 = 0.99: in floats, where the render has 1
      {"bleach of black", {2, {0, 0, 0}}, 0, {0, 0, 0, 255}, true, {0, 0, 0}},
      // A light of 0.4: 100 * k * 0.6 / 255 + (100 + k) * 0.4
      {"colour", {3, {51, 102, 153}}, 0, {100, 100, 100, 255}, true, {72, 104, 137}},
      {"colour tops", {3, {255, 255, 255}}, 0, {7, 100, 255, 255}, true, {255, 255, 255}},
      {"no such type", {9, {255, 128, 0}}, 0, {200, 100, 52, 255}, true, {200, 50, 0}},
  };
  for (const auto& c : kCases) {
    std::array<std::uint8_t, 3> out{};
    WashCellPixel(c.look, c.grey, c.pixel.data(), c.hasUnder ? under.data() : nullptr, out.data());
    EXPECT_EQ((Rgb{out[0], out[1], out[2]}), c.want) << c.name;
  }
}

// The tones: shadow (20, 0, 255), midtone (220, 0, 0), highlight (250, 255, 0).
TEST(ToneCell, ColoursGreysWorkedOutByHand) {
  const ToneCellLook plain{{250, 255, 0}, {220, 0, 0}, {20, 0, 255}, false, 0, 1};
  const ToneCellLook red{{255, 0, 0}, {255, 0, 0}, {255, 0, 0}, false, 0, 1};
  const auto with = [](ToneCellLook look, bool invert, float hue, float saturation) {
    look.invert = invert;
    look.hueShift = hue;
    look.saturation = saturation;
    return look;
  };
  const struct {
    const char* name;
    ToneCellLook look;
    std::uint8_t grey;
    Rgb want;
  } kCases[] = {
      {"black", plain, 0, {20, 0, 255}},
      {"white", plain, 255, {250, 255, 0}},
      // 0.3255 of white, 0.49925 of the shadow
      {"dark", plain, 83, {120, 0, 127}},
      // 0.7843 of white, 0.38375 of the highlight
      {"light", plain, 200, {231, 97, 0}},
      {"light, inverted", with(plain, true, 0, 1), 55, {231, 97, 0}},
      // Hue 127 of 240 at lightness 120: 7 of 40 from green's edge to blue, 198 of 240
      {"hue", with(red, false, 127.5F, 1), 255, {0, 210, 255}},
      // Saturation 120: 180 and 60 of 240
      {"pale", with(red, false, 0, 0.5F), 255, {191, 64, 64}},
      {"grey", with(red, false, 0, 0), 255, {127, 127, 127}},
      // Grey has no hue that could be seen.
      {"grey, turned",
       with({{9, 9, 9}, {9, 9, 9}, {9, 9, 9}, false, 0, 1}, false, 60, 1),
       40,
       {8, 8, 8}},
  };
  for (const auto& c : kCases) {
    ThumbnailPicture picture(2, 1);
    picture.samples.assign(6, c.grey);
    ColorToneCell(c.look, picture);
    EXPECT_EQ((Rgb{picture.samples[3], picture.samples[4], picture.samples[5]}), c.want) << c.name;
  }
}

TEST(ToneCell, TakesTonesOfTheLayerAndShiftsOfTheSettings) {
  EffectLayer layer;
  layer.highlightColor = {1, 2, 3};
  layer.midtoneColor = {4, 5, 6};
  layer.shadowColor = {7, 8, 9};
  layer.invert = 1;
  EffectSettings settings;
  settings.BackgroundHue = 40;
  settings.BackgroundMidtone = 25;
  const ToneCellLook look = ToneLookOf(layer, settings);
  EXPECT_EQ(look.highlight, layer.highlightColor);
  EXPECT_EQ(look.midtone, layer.midtoneColor);
  EXPECT_EQ(look.shadow, layer.shadowColor);
  EXPECT_TRUE(look.invert);
  EXPECT_EQ(look.hueShift, 51.0F);
  EXPECT_EQ(look.saturation, 0.25F);
}

TEST(CellPlaces, StepsOverTheDocumentAsOverATexture) {
  EXPECT_EQ(CellStep(2048), 4.0F);
  EXPECT_EQ(CellStep(1024), 2.0F);
  EXPECT_EQ(CellStep(8192), 16.0F);
  EXPECT_EQ(CellStep(0), 4.0F);
  EXPECT_EQ(CentredPlaces(100, 4, 10), (Places{30, 40, 50, 60}));
  EXPECT_EQ(CentredPlaces(9, 4, 0.5F), (Places{3, 3, 4, 4}));
  // 8 of 5: from -1 on, and kept inside
  EXPECT_EQ(CentredPlaces(5, 4, 2), (Places{0, 1, 3, 4}));
  EXPECT_EQ(CentredPlaces(1, 3, 4), (Places{0, 0, 0}));
  EXPECT_EQ(BackdropPlaces(40, 5), (Places{10, 14, 18, 22, 26}));
  // 15 pixels for 5 points: 3 apart; 3 pixels: several points on one
  EXPECT_EQ(BackdropPlaces(15, 5), (Places{0, 3, 6, 9, 12}));
  EXPECT_EQ(BackdropPlaces(3, 6), (Places{0, 0, 1, 1, 2, 2}));
}

}  // namespace
}  // namespace tarnwick
