#include "toolbox/maths.h"

#include <gtest/gtest.h>

#include "toolbox/hash.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

TEST(Maths, CurvesAgainstKnownValues) {
  const struct {
    const char* name;
    float got;
    double want;
  } kCases[] = {{"sin 0", Sin(0.0F), 0.0},
                {"sin 30 degrees", Sin(kPi / 6.0F), 0.5},
                {"sin 90 degrees", Sin(0.5F * kPi), 1.0},
                {"sin 135 degrees", Sin(0.75F * kPi), 0.70710678},
                {"sin -90 degrees", Sin(-0.5F * kPi), -1.0},
                {"sin 2", Sin(2.0F), 0.90929743},
                {"sin -4", Sin(-4.0F), 0.75680250},
                {"cos 0", Cos(0.0F), 1.0},
                {"cos 60 degrees", Cos(kPi / 3.0F), 0.5},
                {"cos 180 degrees", Cos(kPi), -1.0},
                {"2^0.5", Exp2(0.5F), 1.41421356},
                {"2^-3", Exp2(-3.0F), 0.125},
                {"2^-0.25", Exp2(-0.25F), 0.84089642},
                {"e", Exp(1.0F), 2.71828183},
                {"log 8", Log2(8.0F), 3.0},
                {"log 10", Log2(10.0F), 3.32192809},
                {"log 0.7", Log2(0.7F), -0.51457317},
                {"3^4", Pow(3.0F, 4.0F) / 81.0F, 1.0},
                {"0.25^0.5", Pow(0.25F, 0.5F), 0.5},
                {"0^2", Pow(0.0F, 2.0F), 0.0}};
  for (const auto& c : kCases) EXPECT_NEAR(c.got, c.want, 4e-6) << c.name;
}

TEST(Maths, WholePartsAndRamps) {
  const struct {
    float v;
    int floor;
    float fraction;
  } kFloors[] = {{1.75F, 1, 0.75F}, {-0.25F, -1, 0.75F}, {-2.0F, -2, 0.0F}, {0.0F, 0, 0.0F}};
  for (const auto& c : kFloors) {
    EXPECT_EQ(FloorInt(c.v), c.floor) << c.v;
    EXPECT_EQ(Fraction(c.v), c.fraction) << c.v;
  }
  EXPECT_EQ(Ramp(2.0F, 4.0F, 2.5F), 0.25F);
  EXPECT_EQ(Ramp(4.0F, 2.0F, 2.5F), 0.75F) << "falling";
  EXPECT_EQ(SmoothRamp(0.0F, 1.0F, 0.25F), 0.15625F);  // 3/16 - 2/64
  EXPECT_EQ(SmoothRamp(0.0F, 1.0F, -5.0F), 0.0F);
  EXPECT_NEAR(SoftThreshold(0.5F, 0.5F, 0.2F), 0.5F, 1e-6F);
  EXPECT_EQ(SoftThreshold(0.7F, 0.5F, 0.2F), 1.0F);
}

TEST(Dice, StaysInRangeAndSpreadsEvenly) {
  Dice dice(7);
  int tens[10] = {};
  float sum = 0.0F;
  for (int i = 0; i < 10000; ++i) {
    const float v = dice.Unit();
    ASSERT_GE(v, 0.0F);
    ASSERT_LT(v, 1.0F);
    ++tens[FloorInt(v * 10.0F)];
    const float bell = dice.Around(3.0F, 0.5F);
    ASSERT_GE(bell, 2.0F);
    ASSERT_LE(bell, 4.0F);
    sum += bell;
  }
  // 1000 in each tenth, give or take five standard deviations of 30.
  for (int count : tens) EXPECT_NEAR(count, 1000, 150);
  EXPECT_NEAR(sum / 10000.0F, 3.0F, 0.02F);
  EXPECT_NE(Dice(7, 0).Word(), Dice(7, 1).Word());
}

TEST(Tone, LevelsAndCurve) {
  const Levels levels{0.2F, 0.6F, 2.0F, 0.0F, 1.0F};
  EXPECT_EQ(levels(0.1F), 0.0F);
  EXPECT_NEAR(levels(0.3F), 0.5F, 1e-5F);  // a quarter of the way, square root
  EXPECT_EQ(levels(0.9F), 1.0F);
  const Curve curve{{0.0F, 0.1F}, {0.5F, 0.7F}, {1.0F, 0.3F}};
  EXPECT_EQ(curve(-1.0F), 0.1F);
  EXPECT_NEAR(curve(0.25F), 0.4F, 1e-6F);
  EXPECT_NEAR(curve(0.75F), 0.5F, 1e-6F);
  EXPECT_EQ(curve(2.0F), 0.3F);
  EXPECT_EQ(Screen(0.5F, 0.5F), 0.75F);
  EXPECT_EQ(Overlay(0.25F, 0.5F), 0.25F);
  EXPECT_EQ(Overlay(0.75F, 0.5F), 0.75F);
}

}  // namespace
}  // namespace tarnwick::content
