// The panel behind a drawer, and the box in cells without a picture.
#include <gtest/gtest.h>

#include "dialog/models/crossed_box.h"
#include "dialog/models/drawer_panel.h"

namespace tarnwick {
namespace {

// Face 200, 100, 50 (blue, green, red). The shade's row r, column c is 1 in the corner
// (32, 0) and a half at (32, 1) and (31, 0).
StripShade CornerShade() {
  StripShade shade{};
  shade[32][0] = 1.0F;
  shade[32][1] = 0.5F;
  shade[31][0] = 0.5F;
  return shade;
}

TEST(DrawerPanel, RoundsItsTwoRightCornersOff) {
  constexpr int kWidth = 50;  // 150 bytes a row, padded to 152
  constexpr int kHeight = 80;
  const auto panel = BuildDrawerPanel(CornerShade(), {200, 100, 50}, kWidth, kHeight);
  ASSERT_EQ(panel.size(), 152U * 80U);
  const auto blue = [&](int x, int y) {
    return static_cast<int>(panel[static_cast<std::size_t>(y * 152 + x * 3)]);
  };
  EXPECT_EQ(blue(49, 79), 200);
  EXPECT_EQ(blue(48, 79), 100);
  EXPECT_EQ(blue(49, 78), 100);
  EXPECT_EQ(blue(49, 0), 200);
  EXPECT_EQ(blue(48, 0), 100);
  EXPECT_EQ(blue(49, 1), 100);
  EXPECT_EQ(panel[79 * 152 + 49 * 3 + 2], 50);  // red
  // All else is black.
  int lit = 0;
  for (const std::uint8_t byte : panel) lit += byte != 0 ? 1 : 0;
  EXPECT_EQ(lit, 6 * 3);
}

TEST(DrawerPanel, FitsAnySize) {
  for (const int side : {1, 5, 19, 33, 40}) {
    EXPECT_EQ(BuildDrawerPanel(CornerShade(), {1, 2, 3}, side, side).size(),
              static_cast<std::size_t>(StripRowBytes(side) * side));
  }
  EXPECT_TRUE(BuildDrawerPanel(CornerShade(), {1, 2, 3}, 0, 10).empty());
  EXPECT_TRUE(BuildDrawerPanel(CornerShade(), {1, 2, 3}, 10, -1).empty());
}

TEST(CrossedBox, HasAFrameAndTwoDiagonals) {
  const ThumbnailPicture square = CrossedBox({9, 9}, {10, 20, 30});
  ASSERT_EQ(square.samples.size(), 9U * 9U * 3U);
  const auto red = [&](int x, int y) {
    return static_cast<int>(square.samples[static_cast<std::size_t>((y * 9 + x) * 3)]);
  };
  for (int i = 0; i < 9; ++i) {
    EXPECT_EQ(red(i, 0), 192);
    EXPECT_EQ(red(i, 8), 192);
    EXPECT_EQ(red(0, i), 192);
    EXPECT_EQ(red(8, i), 192);
    EXPECT_EQ(red(i, i), 192);
    EXPECT_EQ(red(i, 8 - i), 192);
  }
  EXPECT_EQ(red(4, 1), 10);
  EXPECT_EQ(square.samples[(1 * 9 + 4) * 3 + 2], 30);
}

// A line that is not steep shares each column's 182 (192 less a ground of 10) among two
// pixels: nothing of it is lost, and nothing is drawn twice.
TEST(CrossedBox, SmoothsLinesThatRunBetweenPixels) {
  const ThumbnailPicture box = CrossedBox({21, 11}, {10, 10, 10});
  const auto at = [&](int x, int y) {
    return static_cast<int>(box.samples[static_cast<std::size_t>((y * 21 + x) * 3)]);
  };
  // Column 5 of the falling diagonal lies at 2.5.
  EXPECT_EQ(at(5, 2), 10 + 91);
  EXPECT_EQ(at(5, 3), 10 + 91);
  EXPECT_EQ(at(5, 5), 10);
  // Column 6 at 3, column 10 at the middle, where both meet.
  EXPECT_EQ(at(6, 3), 192);
  EXPECT_EQ(at(10, 5), 192);
}

}  // namespace
}  // namespace tarnwick
