#include "toolbox/noise.h"

#include <gtest/gtest.h>

#include "toolbox/cells.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"

namespace tarnwick::content {
namespace {

TEST(Noise, PassesZeroWithAUnitSlopeAtWholeCoordinates) {
  for (int i = -3; i < 20; ++i) {
    const float x = static_cast<float>(i * 7 % 11);
    const float y = static_cast<float>(i);
    EXPECT_EQ(GradientNoise(x, y, 5), 0.0F);
    const float step = 1.0F / 512.0F;
    const float slopeX = GradientNoise(x + step, y, 5) / step;
    const float slopeY = GradientNoise(x, y + step, 5) / step;
    // Scaled by the square root of 2 to fill -1..1.
    EXPECT_NEAR(Length(slopeX, slopeY), 1.41421356F, 0.02F);
  }
}

TEST(Noise, StaysInRangeAboutZeroWithoutSteps) {
  const Fbm fbm{40.0F, 5, 0.5F, 9};
  float last = fbm(0.0F, 0.0F);
  float sum = 0.0F;
  float most = 0.0F;
  for (int i = 1; i < 20000; ++i) {
    const float x = static_cast<float>(i) * 0.37F - 3000.0F;
    const float v = fbm(x, 0.21F * x);
    ASSERT_LT(Abs(v - last), 0.25F) << i;
    last = v;
    sum += v;
    most = Max(most, Abs(v));
    const float crest = fbm.Ridged(x, 0.5F * x);
    ASSERT_GE(crest, 0.0F);
    ASSERT_LE(crest, 1.0F);
  }
  EXPECT_NEAR(sum / 20000.0F, 0.0F, 0.05F);
  EXPECT_LE(most, 1.5F);
  EXPECT_GT(most, 0.5F) << "uses its range";
}

TEST(Noise, DoesNotRepeatWithThePeriod) {
  const Fbm fbm{32.0F, 3, 0.5F, 3};
  int equal = 0;
  for (int i = 0; i < 200; ++i) {
    const float x = static_cast<float>(i) * 1.7F;
    for (float shift : {32.0F, 256.0F, 2048.0F, 8192.0F}) {
      if (Abs(fbm(x, 11.0F) - fbm(x + shift, 11.0F)) < 1e-4F) ++equal;
    }
  }
  EXPECT_LT(equal, 8);
}

TEST(Cells, WithoutJitterPointsLieInTheMiddleOfSquares) {
  const Cells cells{10.0F, 0.0F, 4};
  const struct {
    const char* name;
    float x, y, f1, f2, edge;
  } kPlaces[] = {{"on a point", 5.0F, 5.0F, 0.0F, 1.0F, 0.5F},
                 {"half way to the border", 7.5F, 5.0F, 0.25F, 0.75F, 0.25F},
                 {"left of the origin", -2.5F, -5.0F, 0.25F, 0.75F, 0.25F},
                 {"near a corner", 9.0F, 9.0F, 0.56568542F, 0.72111026F, 0.1F}};
  for (const auto& c : kPlaces) {
    const CellSample sample = cells.WithEdge(c.x, c.y);
    EXPECT_NEAR(sample.f1, c.f1, 1e-5F) << c.name;
    EXPECT_NEAR(sample.f2, c.f2, 1e-5F) << c.name;
    EXPECT_NEAR(sample.edge, c.edge, 1e-5F) << c.name;
  }
  EXPECT_NE(cells(5.0F, 5.0F).id, cells(15.0F, 5.0F).id);
}

TEST(Cells, BordersLieHalfWayBetweenNeighbours) {
  const Cells cells{20.0F, 1.0F, 6};
  // Step over the sheet in thin lines: where the nearest point changes, both
  // points are equally far and the border is under the pen.
  int borders = 0;
  for (int row = 0; row < 20; ++row) {
    const float y = static_cast<float>(row) * 17.3F;
    CellSample last = cells.WithEdge(0.0F, y);
    for (int i = 1; i < 4000; ++i) {
      const CellSample sample = cells.WithEdge(static_cast<float>(i) * 0.05F, y);
      EXPECT_LE(sample.f1, sample.f2);
      if (sample.hash != last.hash) {
        EXPECT_NEAR(sample.f1, sample.f2, 0.01F);
        EXPECT_NEAR(sample.edge, 0.0F, 0.006F);
        ++borders;
      }
      last = sample;
    }
  }
  EXPECT_GT(borders, 100);
}

TEST(Spots, DepthFallsFromTheMiddleAndPresenceIsAShare) {
  const Spots spots{20.0F, 0.4F, 3.0F, 9.0F, 8};
  int inside = 0;
  for (int y = 0; y < 400; ++y) {
    for (int x = 0; x < 400; ++x) {
      const Spots::Hit hit = spots(static_cast<float>(x), static_cast<float>(y));
      if (hit.depth <= 0.0F) continue;
      ++inside;
      ASSERT_NEAR(hit.depth, 1.0F - Length(hit.dx, hit.dy), 1e-5F);
      ASSERT_GE(hit.radius, 3.0F);
      ASSERT_LE(hit.radius, 9.0F);
    }
  }
  // 400 squares hold 160 spots. A radius is 3 + 6 u³, u even in 0..1: its mean
  // square is 9 + 36/4 + 36/7.
  const double want = 160.0 * 3.14159 * (9.0 + 9.0 + 36.0 / 7.0);
  EXPECT_NEAR(inside, want, 0.25 * want);
  const Spots none{20.0F, 0.0F, 3.0F, 9.0F, 8};
  EXPECT_EQ(none(50.0F, 50.0F).depth, 0.0F);
}

}  // namespace
}  // namespace tarnwick::content
