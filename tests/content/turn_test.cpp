#include "toolbox/turn.h"

#include <gtest/gtest.h>

namespace tarnwick::content {
namespace {

TEST(Turn, GoesRoundFromTheRightDownwards) {
  struct Case {
    float x, y, turn;
  };
  const Case cases[] = {{5.0F, 0.0F, 0.0F},
                        {1.0F, 1.0F, 0.125F},
                        {0.0F, 2.0F, 0.25F},
                        {-3.0F, 3.0F, 0.375F},
                        {-1.0F, 0.0F, 0.5F},
                        {-1.0F, -1.0F, -0.375F},
                        {0.0F, -0.01F, -0.25F},
                        {2.0F, -2.0F, -0.125F},
                        {1.7320508F, 1.0F, 1.0F / 12.0F},   // 30 degrees
                        {1.0F, 1.7320508F, 1.0F / 6.0F},    // 60
                        {-1.7320508F, 1.0F, 5.0F / 12.0F},  // 150
                        {0.5F, -0.8660254F, -1.0F / 6.0F},  // -60
                        {4.0F, 3.0F, 0.1024164F},           // the triangle 3, 4, 5: 36.8699 degrees
                        {0.0F, 0.0F, 0.0F}};
  for (const Case& c : cases) EXPECT_NEAR(Turn(c.x, c.y), c.turn, 1e-4F) << c.x << ' ' << c.y;
}

// The seams between the eighths are where a slip would show as a ray.
TEST(Turn, HasNoSeamButTheOneAtTheLeft) {
  for (int i = -99; i <= 100; ++i) {
    const float v = static_cast<float>(i);
    // Down the left side is the seam; go along the top, down the right side.
    const float top = Turn(v, -100.0F);
    const float right = Turn(100.0F, v);
    EXPECT_GT(top, Turn(v - 1.0F, -100.0F));
    EXPECT_LT(top - Turn(v - 1.0F, -100.0F), 0.002F);
    EXPECT_GT(right, Turn(100.0F, v - 1.0F));
    EXPECT_LT(right - Turn(100.0F, v - 1.0F), 0.002F);
  }
}

}  // namespace
}  // namespace tarnwick::content
