#include "controls/models/ball_angles.h"

#include <algorithm>
#include <cmath>

#include "controls/models/ball_radians.h"

namespace tarnwick {
namespace {

constexpr float kDegreesOfRadian = 57.29579143313326F;  // 180 by kBallPi

float Distance(int x, int y, int cx, int cy) {
  const auto dx = static_cast<float>(x - cx);
  const auto dy = static_cast<float>(y - cy);
  return std::sqrt(dx * dx + dy * dy);
}

// Level with the centre there is no quotient; the angle stays.
float AngleAt(int x, int y, int cx, int cy, bool isDial, float present) {
  if (y == cy) return present;
  const float a =
      std::atan(static_cast<float>(x - cx) / static_cast<float>(y - cy)) * kDegreesOfRadian;
  if (!isDial) return a - 90.0F + (y < cy ? 180.0F : 0.0F);
  if (y > cy) return -a + 180.0F;
  return -a + (x < cx ? 360.0F : 0.0F);
}

// How much the disc's radius falls short of the square's at this azimuth.
float Fold(float azimuth) {
  const float u = std::fmod(std::fabs(azimuth), 90.0F);
  return std::cos(BallRadians(u > 45.0F ? 90.0F - u : u));
}

}  // namespace

void BallAngles::Press(int x, int y, int width, int height, bool isDial, bool forgetsTurns) {
  if (forgetsTurns) turns = 0;
  const int cx = width / 2;
  const int cy = height / 2;
  // Odd, and kept: the rim is two pixels nearer than in a drag.
  const float share = Distance(x, y, cx, cy) / static_cast<float>(cx - 2);
  altitude = std::acos(std::min(share, 1.0F)) * kDegreesOfRadian;
  angle = AngleAt(x, y, cx, cy, isDial, angle);
  azimuth = turns * 360.0F + angle;
}

void BallAngles::Drag(int x, int y, int width, int height, bool isDial) {
  previousAngle = angle;
  x = std::clamp(x, 0, width);
  y = std::clamp(y, 0, height);
  const int cx = width / 2;
  const int cy = height / 2;
  const float share = Distance(x, y, cx, cy) / static_cast<float>(cx);
  altitude = std::acos(std::clamp(share, -1.0F, 1.0F)) * kDegreesOfRadian;
  angle = AngleAt(x, y, cx, cy, isDial, angle);
  if (previousAngle > 300.0F && angle < 90.0F) turns += 1.0F;
  if (previousAngle < 90.0F && angle > 300.0F) turns -= 1.0F;
  azimuth = turns * 360.0F + angle;
}

BallOffset OffsetOf(float azimuth, float altitude) {
  const float r = std::cos(BallRadians(altitude)) * 100.0F;
  const float t = BallRadians(-azimuth);
  const float fold = Fold(azimuth);
  return {std::cos(t) * r / fold, -std::sin(t) * r / fold};
}

BallAngles AnglesOf(BallOffset offset) {
  BallAngles angles;
  angles.azimuth = std::atan2(offset.y, offset.x) * kDegreesOfRadian;
  const float fold = Fold(angles.azimuth);
  const float x = offset.x * fold;
  const float y = -offset.y * fold;
  const float q = x * x + y * y;
  angles.altitude =
      std::atan2(std::sqrt(std::max(0.0F, 10000.0F - q)), std::sqrt(q)) * kDegreesOfRadian;
  return angles;
}

}  // namespace tarnwick
