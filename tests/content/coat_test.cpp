#include <gtest/gtest.h>

#include <cmath>

#include "toolbox/fur.h"
#include "toolbox/grown_pattern.h"

namespace tarnwick::content {
namespace {

// Along a line across the bands each brings two changes of sign.
TEST(GrownPattern, BandsKeepTheirSpacing) {
  const Sheet sheet{1200, 900, 1, nullptr};
  for (const float spacing : {40.0F, 90.0F}) {
    // The grid has 8.5 cells to a band and values within -1..1; a spline's slope
    // is no steeper than the greatest step between two of its points.
    const float steepest = 2.0F * 8.5F / spacing + 1e-4F;
    const GrownPattern pattern(sheet, {.spacing = spacing, .aligned = true, .rounds = 20});
    int changes = 0, lines = 0, steep = 0;
    for (float y = 10.0F; y < 900.0F; y += 97.0F, ++lines) {
      for (float x = 1.0F; x < 1200.0F; x += 1.0F) {
        const float before = pattern.At(x - 1.0F, y);
        const float here = pattern.At(x, y);
        changes += (before < 0.0F) != (here < 0.0F);
        steep += std::abs(here - before) > steepest;
      }
    }
    const float wanted = 2.0F * 1200.0F / spacing * static_cast<float>(lines);
    EXPECT_NEAR(static_cast<float>(changes), wanted, 0.22F * wanted) << spacing;
    EXPECT_EQ(steep, 0) << "no step between cells";
  }
}

TEST(GrownPattern, GrowsBothWaysUnlessAligned) {
  const Sheet sheet{1000, 1000, 1, nullptr};
  const auto changesAlong = [](const GrownPattern& pattern, bool down) {
    int changes = 0;
    for (int line = 0; line < 1000; line += 50) {
      bool last = false;
      for (int i = 0; i < 1000; i += 2) {
        const float a = static_cast<float>(i), b = static_cast<float>(line);
        const bool band = pattern.At(down ? b : a, down ? a : b) > 0.0F;
        changes += i > 0 && band != last;
        last = band;
      }
    }
    return changes;
  };
  const GrownPattern aligned(sheet, {.spacing = 60.0F, .aligned = true, .rounds = 20});
  EXPECT_GT(changesAlong(aligned, false), 4 * changesAlong(aligned, true));
  const GrownPattern free(sheet, {.spacing = 60.0F, .rounds = 20});
  EXPECT_LT(changesAlong(free, false), 2 * changesAlong(free, true));
  EXPECT_LT(changesAlong(free, true), 2 * changesAlong(free, false));
}

TEST(Fur, CoversTheSkinWithHairsThatReachThePlace) {
  const FurStyle style{.length = 24.0F, .radius = 1.4F, .spacing = 2.6F, .seed = 9};
  for (const float heading : {0.0F, 0.9F, -0.9F}) {
    const auto lie = [heading](float, float) { return heading; };
    const Sheet sheet{160, 120, 1, nullptr};
    const Fur fur(sheet, style, lie);
    ThreadPool five(5);
    const Fur split({160, 120, 1, &five}, style, lie);
    int bare = 0;
    double aside = 0.0, below = 0.0;
    for (int y = 0; y < 120; ++y) {
      for (int x = 0; x < 160; ++x) {
        const Spot spot{x, y, static_cast<float>(x), static_cast<float>(y)};
        const FurSpot& hair = fur(spot);
        EXPECT_EQ(hair.hash, split(spot).hash);
        if (hair.hash == 0) {
          ++bare;
          continue;
        }
        const double dx = x - double{hair.rootX}, dy = y - double{hair.rootY};
        EXPECT_LE(std::hypot(dx, dy), 24.0 + 3.0 + 1.4);
        aside += dx;
        below += dy;
      }
    }
    EXPECT_LT(bare, 160 * 120 / 200);
    EXPECT_GT(below, 0.0);
    // Headings above 0 lie to the left.
    EXPECT_NEAR(std::atan2(-aside, below), double{heading}, 0.08);
  }
}

}  // namespace
}  // namespace tarnwick::content
