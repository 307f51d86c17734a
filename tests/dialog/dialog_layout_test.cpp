#include "dialog/models/dialog_layout.h"

#include <gtest/gtest.h>

namespace tarnwick {

std::ostream& operator<<(std::ostream& out, const Place& p) {
  return out << p.x << ' ' << p.y << ' ' << p.width << ' ' << p.height;
}

namespace {

// A client area of 1000 x 700 with the pane's frame from 391, 75 on: half of what is
// right of it is 309, its middle at 391 - 9 + 309 = 691.
TEST(DialogLayout, At96Dpi) {
  const DialogLayout layout = LayoutDialog({1000, 700, 96, 391, 75});
  EXPECT_EQ(layout.headerTileWidth, 213);
  EXPECT_EQ(layout.rightHeader, (Place{666, 0, 334, 71}));
  EXPECT_EQ(layout.viewAll, (Place{798, 19, 140, 40}));
  EXPECT_EQ(layout.manual, (Place{672, 19, 127, 40}));
  EXPECT_EQ(layout.automatic, (Place{453, 9, 118, 50}));
  EXPECT_EQ(layout.about, (Place{23, 18, 400, 35}));
  EXPECT_EQ(layout.tabs, (Place{10, 80, 372, 611}));
  EXPECT_EQ(layout.ok, (Place{782, 663, 89, 22}));
  EXPECT_EQ(layout.cancel, (Place{511, 663, 89, 22}));
  EXPECT_EQ(layout.zoomIn, (Place{718, 661, 30, 26}));
  EXPECT_EQ(layout.zoomOut, (Place{634, 661, 30, 26}));
  EXPECT_EQ(layout.percentage, (Place{678, 657, 26, 12}));
  EXPECT_EQ(layout.progress, (Place{406, 643, 570, 10}));
  EXPECT_EQ(layout.previewRight, 987);
  EXPECT_EQ(layout.previewBottom, 629);
  EXPECT_EQ(layout.lowerStripTop, 596);
  // 596 wide already; 629 - 75 - 66 high.
  EXPECT_EQ(layout.pane, (Place{391, 108, 596, 488}));
  EXPECT_EQ(layout.optionBox, (Place{411, 602, 20, 20}));
  EXPECT_EQ(layout.optionLabel, (Place{433, 602, 210, 20}));
  EXPECT_EQ(layout.backgroundLabel, (Place{433, 602, 250, 20}));
  EXPECT_EQ(layout.drawer, (Place{0, 80, 382, 611}));
}

TEST(DialogLayout, GrowsWithTheScreen) {
  const struct {
    int dpi, buttonTop, buttonHeight, zoomTop;
    Place percentage;
    int labelWidth;
  } kScreens[] = {
      {120, 663, 22, 661, {674, 657, 34, 14}, 234},
      {144, 659, 28, 659, {672, 651, 38, 16}, 257},
      {192, 659, 28, 659, {672, 651, 38, 16}, 296},
      {216, 654, 38, 659, {672, 641, 38, 16}, 315},
  };
  for (const auto& screen : kScreens) {
    const DialogLayout layout = LayoutDialog({1000, 700, screen.dpi, 391, 75});
    EXPECT_EQ(layout.ok, (Place{782, screen.buttonTop, 89, screen.buttonHeight})) << screen.dpi;
    EXPECT_EQ(layout.zoomIn.y, screen.zoomTop) << screen.dpi;
    EXPECT_EQ(layout.percentage, screen.percentage) << screen.dpi;
    EXPECT_EQ(layout.optionLabel.width, screen.labelWidth) << screen.dpi;
  }
}

TEST(DialogLayout, ThePaneIsAMultipleOfFourWide) {
  for (const auto& [width, wanted] :
       {std::pair{413, 416}, {416, 416}, {417, 420}, {0, 4}, {-5, 4}}) {
    EXPECT_EQ(LayoutDialog({391 + width + 13, 700, 96, 391, 75}).pane.width, wanted);
  }
}

TEST(DialogLayout, FrameAndLeastSize) {
  const struct {
    int dpi, left, width, height;
  } kScreens[] = {{72, 400, 0, 0},      {96, 400, 923, 704},    {120, 330, 923, 704},
                  {144, 385, 923, 704}, {192, 385, 1846, 1408}, {288, 385, 2769, 2112}};
  for (const auto& screen : kScreens) {
    EXPECT_EQ(PreviewLeftFor(400, screen.dpi), screen.left);
    EXPECT_EQ(SmallestTrackSize(screen.dpi).width, screen.width);
    EXPECT_EQ(SmallestTrackSize(screen.dpi).height, screen.height);
  }
}

}  // namespace
}  // namespace tarnwick
