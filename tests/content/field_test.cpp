#include "toolbox/field.h"

#include <gtest/gtest.h>

#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/peel.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Sheet SmallSheet(int width, int height) {
  return {width, height, 1, nullptr};
}

TEST(Field, SamplesBetweenAndBeyond) {
  Field field(2, 2);
  field.Row(0)[0] = 0.0F;
  field.Row(0)[1] = 1.0F;
  field.Row(1)[0] = 2.0F;
  field.Row(1)[1] = 7.0F;
  EXPECT_EQ(field.Sample(0.5F, 0.0F), 0.5F);
  EXPECT_EQ(field.Sample(0.5F, 0.5F), 2.5F);
  EXPECT_EQ(field.Sample(-3.0F, 9.0F), 2.0F);
  EXPECT_EQ(field.Clamped(5, -1), 1.0F);
}

TEST(Field, BytesKeepEndsAndFlatGreysAndSpreadTheRest) {
  const struct {
    const char* name;
    float value;
    int low, high;
    double mean;
  } kCases[] = {{"black", 0.0F, 0, 0, 0.0},
                {"white", 1.0F, 255, 255, 255.0},
                {"beyond", 3.0F, 255, 255, 255.0},
                {"below", -1.0F, 0, 0, 0.0},
                {"a whole step", 166.0F / 255.0F, 166, 166, 166.0},
                {"half a step", 100.5F / 255.0F, 100, 101, 100.5}};
  const Sheet sheet = SmallSheet(100, 100);
  for (const auto& c : kCases) {
    const std::vector<std::uint8_t> bytes = ToBytes(sheet, Field(sheet, c.value));
    double sum = 0.0;
    for (std::uint8_t byte : bytes) {
      ASSERT_GE(byte, c.low) << c.name;
      ASSERT_LE(byte, c.high) << c.name;
      sum += byte;
    }
    EXPECT_NEAR(sum / 10000.0, c.mean, 0.03) << c.name;
  }
}

TEST(Filters, BlurOfADotIsThreeBoxes) {
  // A radius of 1 means boxes of 3; three of them are 1 3 6 7 6 3 1 of 27.
  const Sheet sheet = SmallSheet(15, 13);
  Field field(sheet);
  field.Row(6)[7] = 1.0F;
  Blur(sheet, field, 1.0F);
  const float kWeights[] = {0.0F, 1.0F, 3.0F, 6.0F, 7.0F, 6.0F, 3.0F, 1.0F, 0.0F};
  for (int y = 2; y <= 10; ++y) {
    for (int x = 3; x <= 11; ++x) {
      EXPECT_NEAR(field(x, y), kWeights[x - 3] * kWeights[y - 2] / 729.0F, 1e-6F) << x << ' ' << y;
    }
  }
  Field flat(sheet, 0.25F);
  Blur(sheet, flat, 3.0F);
  EXPECT_NEAR(flat(0, 0), 0.25F, 1e-6F) << "edges repeat, so a flat field stays flat";
}

TEST(Filters, SoftenGivesItsShareToNeighbours) {
  const Sheet sheet = SmallSheet(5, 5);
  Field field(sheet);
  field.Row(2)[2] = 1.0F;
  Soften(sheet, field, 0.6F);
  EXPECT_NEAR(field(2, 2), 0.4F, 1e-6F);
  EXPECT_NEAR(field(1, 2), 0.1F, 1e-6F);  // a sixth of 0.6
  EXPECT_NEAR(field(3, 1), 0.05F, 1e-6F);
  EXPECT_EQ(field(4, 2), 0.0F);
}

TEST(Filters, DistanceIsThatOfTheNearest) {
  const Sheet sheet = SmallSheet(31, 23);
  for (std::uint32_t seed = 0; seed < 6; ++seed) {
    // From one lone place to a third of all.
    const float share = seed == 0 ? 0.0F : 0.005F * static_cast<float>(1U << seed);
    Field mask =
        Painted(sheet, [&](Spot p) { return Unit(HashAt(p.x, p.y, seed)) < share ? 1.0F : 0.0F; });
    mask.Row(20)[4] = 1.0F;
    const Field distance = DistanceTo(sheet, mask);
    for (int y = 0; y < sheet.height; ++y) {
      for (int x = 0; x < sheet.width; ++x) {
        int best = 1 << 30;
        for (int j = 0; j < sheet.height; ++j) {
          for (int i = 0; i < sheet.width; ++i) {
            const int square = (x - i) * (x - i) + (y - j) * (y - j);
            if (mask(i, j) > 0.5F && square < best) best = square;
          }
        }
        ASSERT_EQ(distance(x, y), Sqrt(static_cast<float>(best))) << seed << ' ' << x << ' ' << y;
      }
    }
  }
  EXPECT_EQ(DistanceTo(sheet, Field(sheet))(3, 3), 1e9F) << "nowhere";
}

TEST(Filters, ReliefIsLitFromTheTopLeft) {
  const Sheet sheet = SmallSheet(9, 9);
  const auto at = [&](float dx, float dy) {
    const Field ramp = Painted(sheet, [&](Spot p) { return p.fx * dx + p.fy * dy; });
    return Relief(sheet, ramp, 0.1F)(4, 4);
  };
  EXPECT_GT(at(0.1F, 0.0F), 0.3F);  // 0.6 / 1.6
  EXPECT_LT(at(0.0F, -0.1F), -0.4F);
  EXPECT_NEAR(at(0.0F, 0.0F), 0.0F, 1e-6F);
  EXPECT_LT(at(100.0F, 100.0F), 1.0F);
}

TEST(Filters, RunsFadeRowByRow) {
  Field source(3, 5);
  source.Row(1)[1] = 0.8F;
  source.Row(3)[1] = 0.5F;
  const Field runs = RunDown(
      source, [](Spot) { return 0.5F; }, [](Spot) { return 0.0F; });
  const float kWant[] = {0.0F, 0.8F, 0.4F, 0.5F, 0.25F};
  for (int y = 0; y < 5; ++y) EXPECT_FLOAT_EQ(runs(1, y), kWant[y]) << y;
  EXPECT_EQ(runs(0, 4), 0.0F);
}

TEST(Tone, PercentilesOfARampAndStretch) {
  const Sheet sheet = SmallSheet(100, 2);
  Field ramp = Painted(sheet, [](Spot p) { return p.fx; });
  EXPECT_NEAR(Percentile(ramp, 0.25F, 0.0F, 100.0F), 25.0F, 0.05F);
  StretchTo(sheet, ramp, 0.1F, 0.9F);
  EXPECT_NEAR(ramp(10, 0), 0.0F, 0.01F);
  EXPECT_NEAR(ramp(50, 1), 0.5F, 0.01F);
  Field flat(sheet, 0.3F);
  StretchTo(sheet, flat, 0.0F, 1.0F);
  EXPECT_EQ(flat(5, 0), 0.3F);
}

TEST(Peel, CoatEndsWhereLossBeginsAndStandsUpThere) {
  const Sheet sheet = SmallSheet(120, 40);
  // Loss grows to the right; the coat is gone beyond column 60.
  const Field loss = Painted(sheet, [](Spot p) { return (p.fx - 60.0F) * 0.1F; });
  const PeelingCoat coat = Peel(sheet, loss, {.at = 0.0F, .softness = 0.2F});
  EXPECT_EQ(coat.cover(40, 20), 1.0F);
  EXPECT_EQ(coat.cover(80, 20), 0.0F);
  EXPECT_GT(coat.lift(58, 20), 0.3F);
  EXPECT_LT(coat.lift(20, 20), 0.01F);
  EXPECT_GT(coat.shadow(62, 20), 0.4F) << "thrown to the right";
  EXPECT_EQ(coat.shadow(58, 20), 0.0F) << "never on the coat";
  EXPECT_LT(coat.shadow(90, 20), 0.01F);
}

}  // namespace
}  // namespace tarnwick::content
