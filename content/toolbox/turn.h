#pragma once
#include "toolbox/maths.h"

namespace tarnwick::content {

// The direction of (x, y) in turns: 0 to the right, 0.25 downwards, -0.5..0.5,
// within 1e-4; 0 for (0, 0). For what goes round a middle: rays, rings, sweeps.
[[nodiscard]] constexpr float Turn(float x, float y) {
  const float ax = Abs(x);
  const float ay = Abs(y);
  const float most = Max(ax, ay);
  if (most <= 0.0F) return 0.0F;
  const float t = Min(ax, ay) / most;
  const float s = t * t;
  // The arc tangent for 0..1, as a polynomial fitted to the middle of its error.
  float a =
      t * (0.9998660F + s * (-0.3302995F + s * (0.1801410F + s * (-0.0851330F + s * 0.0208351F))));
  a *= 1.0F / kTau;
  if (ay > ax) a = 0.25F - a;
  if (x < 0.0F) a = 0.5F - a;
  return y < 0.0F ? -a : a;
}

}  // namespace tarnwick::content
