#include <gtest/gtest.h>

#include <string>

#include "controls/models/dpi_scale.h"
#include "controls/models/pointer_tracking.h"
#include "controls/models/swatch_outline.h"

namespace tarnwick {
namespace {

std::string TextOf(const TrackingStep& step) {
  std::string text;
  if (step.capture) text += "capture ";
  if (step.release) text += "release ";
  if (step.redraw) text += "redraw ";
  if (step.notify) text += "notify ";
  return text;
}

TEST(ButtonTracking, FollowsThePointer) {
  ButtonTracking button;
  EXPECT_EQ(TextOf(button.Move(true, true)), "");
  EXPECT_EQ(button.state, 0);
  EXPECT_EQ(TextOf(button.Move(true, false)), "capture redraw ");
  EXPECT_EQ(button.state, 1);
  EXPECT_EQ(TextOf(button.Move(true, false)), "capture ");
  EXPECT_EQ(TextOf(button.Move(false, false)), "release redraw ");
  EXPECT_EQ(button.state, 0);
  EXPECT_EQ(TextOf(button.Press()), "capture redraw ");
  EXPECT_EQ(button.state, 2);
  // Dragged off, it fires all the same.
  EXPECT_EQ(TextOf(button.Move(false, true)), "");
  EXPECT_EQ(TextOf(button.Release()), "release redraw notify ");
  EXPECT_EQ(button.state, 0);
  EXPECT_EQ(TextOf(button.Release()), "release ");
  EXPECT_FALSE(button.latched);
}

TEST(ButtonTracking, AToggleKeepsWhatItIs) {
  ButtonTracking button{0, true, false};
  button.Press();
  button.Release();
  EXPECT_TRUE(button.latched);
  button.Release();
  EXPECT_TRUE(button.latched);
  button.Press();
  button.Release();
  EXPECT_FALSE(button.latched);
}

TEST(LabelTracking, NeverLosesTheCurrentChoice) {
  LabelTracking label;
  EXPECT_EQ(TextOf(label.Move(true)), "capture redraw ");
  EXPECT_EQ(TextOf(label.Move(true)), "");
  EXPECT_EQ(TextOf(label.Release()), "release redraw notify ");
  EXPECT_EQ(label.state, 0);
  label.state = 2;
  EXPECT_EQ(TextOf(label.Move(true)), "");
  label.Move(false);
  label.Release();
  EXPECT_EQ(label.state, 2);
}

TEST(Tracking, TheFarEdgesAreInside) {
  EXPECT_TRUE(IsInside(0, 0, 10, 5));
  EXPECT_TRUE(IsInside(10, 5, 10, 5));
  EXPECT_FALSE(IsInside(11, 5, 10, 5));
  EXPECT_FALSE(IsInside(-1, 0, 10, 5));
}

TEST(DpiScale, HeightsGrowWithTheRootOfTheResolution) {
  const struct {
    int dpi, small, twice, list;
  } kCases[] = {
      {72, 13, 15, 13},
      {96, 13, 15, 13},
      // Roots of 1.25, 1.5, 2 and 2.25: 1.118, 1.225, 1.414, 1.5.
      {120, 14, 17, 16},
      {144, 15, 22, 19},
      {192, 18, 29, 26},
      {216, 19, 33, 29},
  };
  for (const auto& c : kCases) {
    EXPECT_EQ(ScaledHeight(13, c.dpi), c.small) << c.dpi;
    EXPECT_EQ(TwiceScaledHeight(15, c.dpi), c.twice) << c.dpi;
    EXPECT_EQ(LinearHeight(13, c.dpi), c.list) << c.dpi;
  }
}

TEST(SwatchOutline, IsSeenOnEveryColour) {
  EXPECT_EQ(OutlineChannel(128, false), 254);
  EXPECT_EQ(OutlineChannel(127, false), 64);
  EXPECT_EQ(OutlineChannel(255, false), 127);
  EXPECT_EQ(OutlineChannel(0, false), 127);
  EXPECT_EQ(OutlineChannel(128, true), 127);
}

}  // namespace
}  // namespace tarnwick
