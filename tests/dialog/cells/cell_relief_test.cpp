// The relief of a cell: heights, light and their order of rows.
#include <gtest/gtest.h>

#include <cmath>

#include "dialog/cells/cell_relief.h"
#include "engine/surface_light.h"

namespace tarnwick {
namespace {

using Floats = std::vector<float>;

ThumbnailPicture GreyPicture(int width, int height, const std::vector<std::uint8_t>& greys) {
  ThumbnailPicture picture(width, height);
  for (std::size_t i = 0; i < greys.size(); ++i) {
    for (std::size_t c = 0; c < 3; ++c) picture.samples[3 * i + c] = greys[i];
  }
  return picture;
}

// One bump of 100: what comes after it, to the right and above, has its share of it
// already, and what comes before keeps its height.
TEST(CellRelief, SmoothsInPlaceFromTheLowerLeft) {
  const ThumbnailPicture picture = GreyPicture(4, 5, {0, 0, 0,   0,  //
                                                      0, 0, 0,   0,  //
                                                      0, 0, 100, 0,  //
                                                      0, 0, 0,   0,  //
                                                      0, 0, 0,   0});
  // Half as high, from the bottom: below the bump 50 / 5; left of it (50 + 0) / 5;
  // the bump (50 + 10 + 10) / 5 = 14; above it, left: 10 / 5; right: (14 + 2) / 5.
  const Floats want = {0, 0,  0,    0,  //
                       0, 0,  10,   0,  //
                       0, 10, 14,   0,  //
                       0, 2,  3.2F, 0,  //
                       0, 0,  0,    0};
  const Floats heights = CellHeights(picture, false, 0.5F);
  ASSERT_EQ(heights.size(), want.size());
  for (std::size_t i = 0; i < want.size(); ++i) EXPECT_NEAR(heights[i], want[i], 1e-5) << i;
}

TEST(CellRelief, TurnsHeightsRoundAndLeavesWhatHasNoInterior) {
  EXPECT_EQ(CellHeights(GreyPicture(2, 2, {1, 2, 3, 255}), false, 2), (Floats{6, 510, 2, 4}));
  EXPECT_EQ(CellHeights(GreyPicture(2, 2, {1, 2, 3, 255}), true, 1), (Floats{252, 0, 254, 253}));
}

TEST(CellRelief, LightsDifferencesToTheRightAndToTheNextRow) {
  const CellLight light{1, 0.5F, 10, 2};
  const struct {
    const char* name;
    int width;
    Floats heights;
    Floats want;  // (next row * 10 + right) * 2 + 0.5
  } kCases[] = {
      {"one point", 1, {7}, {0.5F}},
      // 2, -1, and the last column goes on as the one before it
      {"one row", 3, {1, 3, 2}, {4.5F, -1.5F, -1.5F}},
      {"one column", 1, {1, 3, 2}, {40.5F, -19.5F, -19.5F}},
      // Below: 3, 6, and the same again; right: 1, 1, 4, 4
      {"two by two", 2, {1, 2, 4, 8}, {62.5F, 122.5F, 68.5F, 128.5F}},
  };
  for (const auto& c : kCases) {
    Floats lit = c.heights;
    LightCell(light, c.width, lit);
    EXPECT_EQ(lit, c.want) << c.name;
  }
}

TEST(CellRelief, ComesFromTheSideThatLightsThePane) {
  EffectSettings settings;
  settings.SurfaceDepth1 = 100;
  settings.SurfaceDepth2 = 400;
  settings.SurfaceLightAlpha = 90;
  settings.SurfaceLightBeta = 45;
  // 1 * 150 / 2 / 5000
  EXPECT_FLOAT_EQ(CellLightOf(settings, 2).slope, 0.015F);
  settings.SecondSurfaceExists = 1;
  EXPECT_FLOAT_EQ(CellLightOf(settings, 2).slope, 0.03F);
  const double half = std::sqrt(0.5);
  for (const auto& [alpha, x, z] :
       {std::tuple{0.0F, half, 0.0}, std::tuple{90.0F, 0.0, half}, std::tuple{180.0F, -half, 0.0},
        std::tuple{225.0F, -0.5, -0.5}}) {
    settings.SurfaceLightAlpha = alpha;
    const CellLight light = CellLightOf(settings, 2);
    EXPECT_NEAR(light.x, x, 1e-5) << alpha;
    EXPECT_NEAR(light.y, half, 1e-5) << alpha;
    EXPECT_NEAR(light.z, z, 1e-5) << alpha;
    // Rows go up here and down there.
    const SurfaceLight pane = LightOf(settings, 2);
    EXPECT_NEAR(light.x, pane.x, 1e-5) << alpha;
    EXPECT_NEAR(light.z, -pane.y, 1e-5) << alpha;
    EXPECT_EQ(light.slope, pane.slope);
  }
}

}  // namespace
}  // namespace tarnwick
