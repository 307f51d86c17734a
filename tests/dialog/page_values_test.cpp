#include "dialog/models/page_values.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarnwick {
namespace {

TEST(PageValues, TypedTextsBecomeNumbers) {
  EXPECT_EQ(ParseValue("42"), 42.0F);
  EXPECT_EQ(ParseValue(" -150"), -150.0F);
  EXPECT_EQ(ParseValue("12.5 of 100"), 12.5F);
  EXPECT_EQ(ParseValue(""), 0.0F);
  EXPECT_EQ(ParseValue("much"), 0.0F);
  EXPECT_EQ(ParseValue("nan"), 0.0F);
  EXPECT_EQ(ParseValue("-inf"), 0.0F);
  EXPECT_EQ(ParseValue("0x20"), 0.0F);
  EXPECT_EQ(ParseValue("+.5x"), 0.5F);
  // A light whose angle is no number would leave nothing of the picture.
  EXPECT_LT(ParseValue("9e99"), std::numeric_limits<float>::infinity());
  // Sixteen characters count.
  EXPECT_EQ(ParseValue("00000000000000017"), 1.0F);
  EXPECT_EQ(ParseWhole("1234"), 1234);
  EXPECT_EQ(ParseWhole("-7.9"), -7);
  EXPECT_EQ(ParseWhole("99999999999"), 2147483647);
  EXPECT_EQ(ParseWhole("-99999999999"), -2147483647 - 1);
}

TEST(PageValues, SeedsKeepTheirSign) {
  EXPECT_EQ(SeedOf(1234), 234);
  EXPECT_EQ(SeedOf(234), 234);
  EXPECT_EQ(SeedOf(-1234), -234);
  EXPECT_EQ(SeedOf(1000), 0);
}

TEST(PageValues, TextsOfNumbers) {
  EXPECT_EQ(WholeText(-100), "-100");
  EXPECT_EQ(AngleText(58.0F), "58.00");
  EXPECT_EQ(AngleText(12.345F), "12.35");
}

// Range 80 by 40: the ball's right is no offset along x, its left is all of it; its foot
// is none along y, its top all.
TEST(PageValues, TheBallStandsForAnOffset) {
  const TextureOffset range{80, 40};
  const auto offset = [&](float x, float y) { return OffsetOfBall({x, y}, range); };
  EXPECT_EQ(offset(100, -100).x, 0.0F);
  EXPECT_EQ(offset(100, -100).y, 0.0F);
  EXPECT_EQ(offset(-100, 100).x, 80.0F);
  EXPECT_EQ(offset(-100, 100).y, 40.0F);
  EXPECT_EQ(offset(0, 0).x, 40.0F);
  EXPECT_EQ(offset(0, 0).y, 20.0F);
  EXPECT_FLOAT_EQ(offset(99, 0).x, 0.4F);
  const BallOffset ball = BallOfOffset({20, 30}, range);
  EXPECT_EQ(ball.x, 50.0F);
  EXPECT_EQ(ball.y, 50.0F);
  const BallOffset fixed = BallOfOffset({0, 0}, {0, 0});
  EXPECT_EQ(fixed.x, 0.0F);
  EXPECT_EQ(fixed.y, 0.0F);
}

// To 33.5 and 10: what is left of a pixel counts on the way there, whichever way that is.
TEST(PageValues, TheWayIsMadeWholeOnce) {
  const OffsetPoint wanted{33.5F, 10};
  const auto way = [&](int x, int y, float scale) { return WayTo(wanted, {x, y}, scale); };
  EXPECT_EQ(way(20, 10, 1).x, 13);
  EXPECT_EQ(way(20, 10, 1).y, 0);
  EXPECT_EQ(way(40, 30, 1).x, -6);  // from 40 back by 6.5
  EXPECT_EQ(way(40, 30, 1).y, -20);
  EXPECT_EQ(way(33, 10, 1).x, 0);
  EXPECT_EQ(way(40, 31, 3).x, -2);  // 6.5 by 3
  EXPECT_EQ(way(40, 31, 3).y, -7);
}

TEST(PageValues, TypedOffsetsStayBelowTheLargest) {
  EXPECT_EQ(LimitOffset(10, 40), 10);
  EXPECT_EQ(LimitOffset(40, 40), 39);
  EXPECT_EQ(LimitOffset(-3, 40), 0);
  EXPECT_EQ(LimitOffset(5, 0), 0);
}

}  // namespace
}  // namespace tarnwick
