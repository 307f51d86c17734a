#include "dialog/models/page_values.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(PageValues, TypedTextsBecomeNumbers) {
  EXPECT_EQ(ParseValue("42"), 42.0F);
  EXPECT_EQ(ParseValue(" -150"), -150.0F);
  EXPECT_EQ(ParseValue("12.5 of 100"), 12.5F);
  EXPECT_EQ(ParseValue(""), 0.0F);
  EXPECT_EQ(ParseValue("much"), 0.0F);
  EXPECT_EQ(ParseValue("nan"), 0.0F);
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

TEST(PageValues, TextsOfNumbersAndNames) {
  EXPECT_EQ(WholeText(-100), "-100");
  EXPECT_EQ(AngleText(58.0F), "58.00");
  EXPECT_EQ(AngleText(12.345F), "12.35");
  EXPECT_EQ(TextureTitle("General_Store.twk"), "General_Store");
  EXPECT_EQ(TextureTitle("Loud.TWK"), "Loud");
  EXPECT_EQ(TextureTitle("twk"), "twk");
  EXPECT_EQ(TextureTitle("a.twk.png"), "a.twk.png");
}

// Range 80 by 40: the ball's right is no offset along x, its left is all of it; its top
// is none along y.
TEST(PageValues, TheBallStandsForAnOffset) {
  const TextureOffset range{80, 40};
  const auto offset = [&](float x, float y) { return OffsetOfBall({x, y}, range); };
  EXPECT_EQ(offset(100, -100).x, 0);
  EXPECT_EQ(offset(100, -100).y, 0);
  EXPECT_EQ(offset(-100, 100).x, 80);
  EXPECT_EQ(offset(-100, 100).y, 40);
  EXPECT_EQ(offset(0, 0).x, 40);
  EXPECT_EQ(offset(0, 0).y, 20);
  EXPECT_EQ(offset(99, 0).x, 0);  // 0.4 of a pixel
  const BallOffset ball = BallOfOffset({20, 30}, range);
  EXPECT_EQ(ball.x, 50.0F);
  EXPECT_EQ(ball.y, 50.0F);
  const BallOffset fixed = BallOfOffset({0, 0}, {0, 0});
  EXPECT_EQ(fixed.x, 0.0F);
  EXPECT_EQ(fixed.y, 0.0F);
}

TEST(PageValues, TypedOffsetsStayBelowTheLargest) {
  EXPECT_EQ(LimitOffset(10, 40), 10);
  EXPECT_EQ(LimitOffset(40, 40), 39);
  EXPECT_EQ(LimitOffset(-3, 40), 0);
  EXPECT_EQ(LimitOffset(5, 0), 0);
}

}  // namespace
}  // namespace tarnwick
