#include "toolbox/weave.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string_view>

#include "toolbox/facets.h"
#include "toolbox/lettering.h"

namespace tarnwick::content {
namespace {

// Threads that are all alike, so that every place can be worked out by hand.
Weave Even(Binding binding) {
  return {.warpPitch = 10.0F,
          .weftPitch = 10.0F,
          .warpFill = 0.8F,
          .weftFill = 0.8F,
          .uneven = 0.0F,
          .slub = 0.0F,
          .wander = 0.0F,
          .crimp = 0.5F,
          .binding = binding};
}

// Middles of threads lie at 5, 15, 25 ...; crossing (i, j) at their meeting.
TEST(Weave, WhichThreadLiesOnTop) {
  const struct {
    const char* name;
    Binding binding;
    const char* rows[4];  // w: warp on top, columns 0 to 3
  } kCases[] = {{"plain", Binding::kPlain, {"w-w-", "-w-w", "w-w-", "-w-w"}},
                {"basket", Binding::kBasket, {"ww--", "ww--", "--ww", "--ww"}},
                {"twill", Binding::kTwill, {"-www", "www-", "ww-w", "w-ww"}}};
  for (const auto& c : kCases) {
    const Weave weave = Even(c.binding);
    // A repeat to the left and above looks the same: counting has no seam at 0.
    for (const int from : {0, -4}) {
      for (int j = 0; j < 4; ++j) {
        for (int i = 0; i < 4; ++i) {
          const Weave::Place at = weave.At(static_cast<float>(10 * (from + i) + 5),
                                           static_cast<float>(10 * (from + j) + 5));
          EXPECT_EQ(at.warp, c.rows[j][i] == 'w') << c.name << ' ' << from + i << ' ' << from + j;
          EXPECT_NEAR(at.height, 1.0F, 1e-5F) << "(1 + crimp) / (1 + crimp) on top";
        }
      }
    }
  }
}

TEST(Weave, HolesAndRims) {
  const Weave weave = Even(Binding::kPlain);
  EXPECT_TRUE(weave.At(10.0F, 10.0F).hole) << "threads are 8 broad, 10 apart";
  EXPECT_FALSE(weave.At(8.5F, 10.0F).hole);
  EXPECT_TRUE(weave.At(9.5F, 10.0F).hole);
  // Half way between its crossings a thread is on neither side, and 3 of 4
  // pixels off its middle it is sqrt(1 - 9/16) high: 0.66144 / 1.5.
  const Weave::Place rim = weave.At(8.0F, 10.0F);
  EXPECT_TRUE(rim.warp);
  EXPECT_NEAR(rim.across, 0.75F, 1e-5F);
  EXPECT_NEAR(rim.level, 0.0F, 1e-5F);
  EXPECT_NEAR(rim.height, 0.44096F, 1e-4F);
}

TEST(Facets, HaveNoGapsOrSteps) {
  const Facets facets{.period = 40.0F, .jitter = 0.8F, .seed = 5};
  // No edge is shorter than a fifth of the period, heights differ by 2 at
  // most: a face rises by well under 1 for a pixel. A gap would jump.
  float steepest = 0.0F;
  for (int y = -60; y < 200; ++y) {
    for (int x = -60; x < 200; ++x) {
      const float here = facets(static_cast<float>(x), static_cast<float>(y));
      ASSERT_LE(std::fabs(here), 1.0F);
      const float aside = facets(static_cast<float>(x) + 0.01F, static_cast<float>(y));
      steepest = std::max(steepest, std::fabs(aside - here) / 0.01F);
    }
  }
  EXPECT_LT(steepest, 3.0F);
  EXPECT_GT(steepest, 0.02F);
}

TEST(Lettering, EveryLetterStandsInItsBox) {
  const Sheet sheet{80, 80, 1, nullptr};
  for (const char letter : std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789")) {
    StrokeSet strokes;
    AddLettering(strokes, {.x = 20.0F, .y = 60.0F, .height = 40.0F, .narrow = 0.6F, .radius = 1.0F},
                 std::string_view(&letter, 1));
    Field ink(sheet);
    strokes.Draw(sheet, ink);
    int top = 80, bottom = -1, right = -1, left = 80;
    for (int y = 0; y < 80; ++y) {
      for (int x = 0; x < 80; ++x) {
        if (ink(x, y) < 0.6F) continue;
        top = std::min(top, y);
        bottom = std::max(bottom, y);
        left = std::min(left, x);
        right = std::max(right, x);
      }
    }
    // From base line to full height, within 0.6 of that across.
    EXPECT_NEAR(top, 20, 1) << letter;
    EXPECT_NEAR(bottom, 60, 1) << letter;
    EXPECT_GE(left, 17) << letter;
    EXPECT_LE(right, 45) << letter;
  }
}

}  // namespace
}  // namespace tarnwick::content
