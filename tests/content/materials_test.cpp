#include <gtest/gtest.h>

#include "toolbox/folds.h"
#include "toolbox/maths.h"
#include "toolbox/planks.h"
#include "toolbox/rust.h"
#include "toolbox/stains.h"
#include "toolbox/wood.h"

namespace tarnwick::content {
namespace {

TEST(Stains, EvenPuddleIsADisc) {
  const Puddle puddle{50.0F, 60.0F, 20.0F, 0.0F};
  EXPECT_NEAR(puddle.Inside(50.0F, 60.0F), 20.0F, 1e-4F);
  EXPECT_NEAR(puddle.Inside(53.0F, 64.0F), 15.0F, 1e-4F);
  EXPECT_LE(puddle.Inside(90.0F, 60.0F), -20.0F);
}

TEST(Stains, TideMarkIsDarkestAlongItsBorder) {
  const TideMark mark{.rim = 3.0F, .fade = 40.0F, .body = 0.2F, .edge = 0.8F};
  EXPECT_EQ(mark(-1.0F), 0.0F);
  EXPECT_EQ(mark(-400.0F), 0.0F);
  EXPECT_NEAR(mark(1.0F), 0.8F, 1e-5F);
  EXPECT_GT(mark(1.0F), mark(12.0F) + 0.2F);
  EXPECT_GT(mark(12.0F), mark(100.0F));
  EXPECT_NEAR(mark(1000.0F), 0.2F, 1e-3F);
}

TEST(Stains, CupRingIsARing) {
  const CupRing ring{100.0F, 100.0F, 60.0F, 8.0F, 1.0F, 5};
  int marked = 0;
  for (int i = 0; i < 360; ++i) {
    const float angle = static_cast<float>(i) * kTau / 360.0F;
    const auto at = [&](float radius) {
      return ring.At(100.0F + radius * Cos(angle), 100.0F + radius * Sin(angle));
    };
    marked += at(60.0F) > 0.1F ? 1 : 0;
    EXPECT_EQ(at(25.0F), 0.0F);
    EXPECT_EQ(at(95.0F), 0.0F);
  }
  EXPECT_GT(marked, 180) << "wet most of the way round";
}

TEST(Folds, LightDarkAndWornOnTheLineOnly) {
  // One level crease at row 100; its line strays by 3 pixels at most.
  const Folds folds({{100.0F, 100.0F, 0.0F, 1.0F, false}}, 3);
  float worn = 0.0F;
  for (int x = 0; x < 200; ++x) {
    const float fx = static_cast<float>(x);
    const FoldSpot above = folds.At(fx, 90.0F);
    const FoldSpot below = folds.At(fx, 110.0F);
    EXPECT_LT(above.shade * below.shade, 0.0F) << x;
    EXPECT_NEAR(above.toCrease, 10.0F, 3.1F) << x;
    EXPECT_EQ(folds.At(fx, 80.0F).wear, 0.0F) << x;
    for (float y = 96.0F; y <= 104.0F; y += 1.0F) worn = Max(worn, folds.At(fx, y).wear);
  }
  EXPECT_GT(worn, 0.5F);
}

TEST(Planks, PlacesLieWithinTheirPlankAndNailsToo) {
  const Planks planks{.seed = 12};
  int nails = 0;
  for (int y = 0; y < 900; y += 3) {
    for (int x = 0; x < 1600; x += 3) {
      const float fx = static_cast<float>(x);
      const float fy = static_cast<float>(y);
      const Planks::Place at = planks.At(fx, fy);
      ASSERT_GE(at.v, 0.0F);
      ASSERT_LT(at.v, at.breadth);
      ASSERT_GE(at.u, 0.0F);
      ASSERT_GT(at.breadth, 0.5F * planks.breadth);
      ASSERT_LE(at.toGap, 0.5F * at.breadth + 0.01F);
      const Planks::Nail nail = planks.NailAt(fx, fy);
      if (nail.distance < 4.0F) {
        ++nails;
        ASSERT_GT(at.toGap, 10.0F);
        ASSERT_GT(at.toEnd, 10.0F);
      }
    }
  }
  EXPECT_GT(nails, 20);
}

TEST(Planks, OnePlaceBelongsToOnePlank) {
  const Planks planks{.seed = 12};
  // Down a column the plank changes only where a gap is passed.
  Planks::Place last = planks.At(300.0F, 0.0F);
  int changes = 0;
  for (int i = 1; i < 4000; ++i) {
    const Planks::Place at = planks.At(300.0F, static_cast<float>(i) * 0.25F);
    if (at.plank != last.plank) {
      ++changes;
      EXPECT_LT(at.toGap, 0.3F);
    }
    last = at;
  }
  EXPECT_GE(changes, 3);
  EXPECT_LE(changes, 8);
}

TEST(Wood, ValuesStayInRangeAndKnotsAreSmall) {
  const Wood wood{.seed = 5};
  int knotted = 0;
  int all = 0;
  for (int y = 0; y < 1536; y += 5) {
    for (int x = 0; x < 2048; x += 5) {
      const Wood::Place at = wood.At(static_cast<float>(x), static_cast<float>(y));
      ASSERT_GE(at.ring, 0.0F);
      ASSERT_LE(at.ring, 1.0F);
      ASSERT_GE(at.split, 0.0F);
      ASSERT_LE(at.split, 1.0F);
      ++all;
      knotted += at.knot > 0.0F ? 1 : 0;
    }
  }
  EXPECT_GT(knotted, 0);
  EXPECT_LT(knotted, all / 20);
}

TEST(RustBloom, GrowsWithItsReach) {
  const RustBloom bloom(4);
  float sums[3] = {};
  const float kReach[] = {-1.0F, 0.2F, 1.2F};
  for (int y = 0; y < 60; ++y) {
    for (int x = 0; x < 60; ++x) {
      const Spot spot{x, y, static_cast<float>(x), static_cast<float>(y)};
      for (int i = 0; i < 3; ++i) {
        const float v = bloom.At(spot, spot, kReach[i]);
        ASSERT_GE(v, 0.0F);
        ASSERT_LE(v, 1.0F);
        sums[i] += v / 3600.0F;
      }
    }
  }
  EXPECT_EQ(sums[0], 0.0F);
  EXPECT_GT(sums[1], 0.02F);
  EXPECT_LT(sums[1], 0.7F);
  EXPECT_GT(sums[2], 0.9F);
}

}  // namespace
}  // namespace tarnwick::content
