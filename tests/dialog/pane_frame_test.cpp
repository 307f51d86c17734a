// The strips round the pane, marks on it, and where the result goes.
#include <gtest/gtest.h>

#include "dialog/models/effect_views.h"
#include "dialog/models/new_layer_options.h"
#include "dialog/models/pane_overlay.h"
#include "dialog/models/shadow_strip.h"

namespace tarnwick {
namespace {

std::vector<int> PixelAt(const std::vector<std::uint8_t>& strip, int width, int x, int row) {
  const auto at = static_cast<std::size_t>((width * 3 + 3) / 4 * 4 * row + x * 3);
  return {strip[at], strip[at + 1], strip[at + 2]};
}

TEST(ShadowStrip, LaysTheShadeAtBothEndsOfALowerAndTurnedUpOfAnUpperStrip) {
  StripShade shade{};
  shade[0][0] = 0.5F;   // top left
  shade[32][0] = 1.0F;  // bottom left
  shade[32][19] = 0.25F;
  const FaceColor face = {200, 101, 50};
  const int width = 50;
  const auto lower = BuildShadowStrip(shade, face, width, false);
  ASSERT_EQ(lower.size(), 152U * 33U);
  using Color = std::vector<int>;
  EXPECT_EQ(PixelAt(lower, width, 0, 0), (Color{100, 50, 25}));
  EXPECT_EQ(PixelAt(lower, width, 49, 0), (Color{100, 50, 25}));
  EXPECT_EQ(PixelAt(lower, width, 0, 32), (Color{200, 101, 50}));
  EXPECT_EQ(PixelAt(lower, width, 19, 32), (Color{50, 25, 12}));
  EXPECT_EQ(PixelAt(lower, width, 30, 32), (Color{50, 25, 12}));
  for (int x = 20; x < 30; ++x) EXPECT_EQ(PixelAt(lower, width, x, 32), (Color{0, 0, 0}));
  const auto upper = BuildShadowStrip(shade, face, width, true);
  EXPECT_EQ(PixelAt(upper, width, 0, 0), (Color{200, 101, 50}));
  EXPECT_EQ(PixelAt(upper, width, 49, 32), (Color{100, 50, 25}));
  EXPECT_EQ(PixelAt(upper, width, 19, 0), (Color{50, 25, 12}));
}

TEST(ShadowStrip, FitsAnyWidth) {
  StripShade shade{};
  shade[5].fill(1.0F);
  const FaceColor face = {1, 2, 3};
  EXPECT_TRUE(BuildShadowStrip(shade, face, 0, false).empty());
  EXPECT_TRUE(BuildShadowStrip(shade, face, -4, true).empty());
  EXPECT_EQ(BuildShadowStrip(shade, face, 1, false).size(), 4U * 33U);
  const auto narrow = BuildShadowStrip(shade, face, 21, false);
  EXPECT_EQ(PixelAt(narrow, 21, 20, 5), (std::vector<int>{1, 2, 3}));
}

TEST(PaneOverlay, BlendsTowardsGrey) {
  // Two rows of two pixels, bottom row first.
  std::vector<std::uint8_t> pixels = {0, 0, 0, 255, 255, 255, 0, 100, 192, 7, 8, 9};
  MarkPixels(pixels.data(), 2, 2, {0, 51, 255, 128});
  // Bottom row: fully marked; 255 - 63 * 128 / 255 (31). Top row: left alone; a fifth
  // of the way from 7, 8 and 9 to 192.
  EXPECT_EQ(pixels,
            (std::vector<std::uint8_t>{192, 192, 192, 224, 224, 224, 0, 100, 192, 44, 44, 45}));
  const auto before = pixels;
  MarkPixels(pixels.data(), 2, 2, {});
  MarkPixels(pixels.data(), 2, 2, {255, 255, 255});
  EXPECT_EQ(pixels, before);
}

TEST(NewLayerOptions, AMaskTakesTheBackgroundAlong) {
  EffectSettings settings{};
  SetNewLayerOption(settings, kMaskOption, true);
  EXPECT_EQ(settings.MaskLayerEffect, 1);
  EXPECT_EQ(settings.NewLayerBackground, 1);
  SetNewLayerOption(settings, kMaskOption, false);
  EXPECT_EQ(settings.MaskLayerEffect, 0);
  EXPECT_EQ(settings.NewLayerBackground, 1);
  EXPECT_EQ(settings.NewLayerEffect, 0);
  EXPECT_EQ(settings.NewLayerSurface, 0);
}

TEST(NewLayerOptions, AreOfferedByHostAndDocument) {
  struct Case {
    int planes;
    bool isCmyk, offersMask;
  };
  for (const Case& c :
       {Case{3, false, false}, Case{4, false, true}, Case{4, true, false}, Case{5, true, true}}) {
    for (std::size_t i = 0; i < kNewLayerOptions.size(); ++i) {
      EXPECT_FALSE(IsOptionOffered(i, false, c.planes, c.isCmyk));
      EXPECT_EQ(IsOptionOffered(i, true, c.planes, c.isCmyk), i != kMaskOption || c.offersMask);
    }
  }
}

TEST(EffectViews, KeepOneAPage) {
  EffectViews views;
  views.currentTab = kWashTab;
  views.Current() = ViewMode::kWashTwo;
  views.currentTab = kBackgroundTab;
  EXPECT_EQ(views.Current(), ViewMode::kComposite);
  views.Current() = ViewMode::kOriginal;
  views.currentTab = kWashTab;
  EXPECT_EQ(views.Current(), ViewMode::kWashTwo);
}

}  // namespace
}  // namespace tarnwick
