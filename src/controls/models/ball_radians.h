#pragma once

namespace tarnwick {

// Not all of its digits, and kept: offsets hang on it.
inline constexpr float kBallPi = 3.141592F;

[[nodiscard]] inline float BallRadians(float degrees) {
  return degrees * kBallPi / 180.0F;
}

}  // namespace tarnwick
