#pragma once
#include <cstdint>
#include <vector>

namespace tarnwick {

struct FaceColor {
  std::uint8_t red, green, blue;
};

// How a ball is lit.
struct BallLight {
  float azimuth = 0;  // degrees
  float altitude = 90;
  bool isSpotted = true;  // with a bright spot
};

// A shaded ball in the middle of a bitmap of `width` by `height` pixels, four bytes
// each: blue, green, red, unused; rows from the top. What is outside the ball is
// `face`, and its rim fades into it.
[[nodiscard]] std::vector<std::uint8_t> ShadedBall(int width, int height, const BallLight& light,
                                                   FaceColor face);

struct BallMarker {
  int x, y;
};
// Where a cross marks the point that the angles stand for.
[[nodiscard]] BallMarker MarkerOf(int width, int height, float azimuth, float altitude);

}  // namespace tarnwick
