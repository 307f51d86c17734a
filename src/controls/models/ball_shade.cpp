#include "controls/models/ball_shade.h"

#include <algorithm>
#include <cmath>

#include "controls/models/ball_radians.h"

namespace tarnwick {
namespace {

struct Vector {
  float x, y, z;
};

Vector Normalised(Vector v) {
  const float length = std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
  return {v.x / length, v.y / length, v.z / length};
}

Vector DirectionOf(const BallLight& light) {
  const float azimuth = BallRadians(light.azimuth + 90.0F);
  const float altitude = BallRadians(light.altitude);
  return Normalised({std::sin(azimuth) * std::cos(altitude), std::cos(azimuth) * std::cos(altitude),
                     std::sin(altitude)});
}

float Shade(const Vector& normal, const Vector& direction, bool isSpotted) {
  const float dot = normal.x * direction.x + normal.y * direction.y + normal.z * direction.z;
  float d = dot * dot * dot;
  if (isSpotted) d += std::pow(d, 20.0F);
  return std::clamp(d * 205.0F + 50.0F, 0.0F, 255.0F);
}

int RadiusOf(int width, int height) {
  return std::min(width / 2, height / 2);
}

}  // namespace

std::vector<std::uint8_t> ShadedBall(int width, int height, const BallLight& light,
                                     FaceColor face) {
  const std::uint8_t back[4] = {face.blue, face.green, face.red, 0};
  std::vector<std::uint8_t> pixels;
  pixels.reserve(static_cast<std::size_t>(std::max(width, 0)) *
                 static_cast<std::size_t>(std::max(height, 0)) * 4);
  const Vector direction = DirectionOf(light);
  const auto radius = static_cast<float>(RadiusOf(width, height));
  // Over so much of the height the rim fades.
  constexpr float kRim = 11.0F;
  const int cx = width / 2;
  const int cy = height / 2;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const auto px = static_cast<float>(x - cx);
      const auto py = static_cast<float>(y - cy);
      const float square = radius * radius - px * px - py * py;
      const float pz = square > 0 ? std::sqrt(square) : 0.0F;
      const float share = std::min(pz / kRim, 1.0F);
      const float deep = pz == 0 ? 1.0F : pz;
      const float s =
          share > 0 ? Shade(Normalised({px / deep, py / deep, 1.0F}), direction, light.isSpotted)
                    : 0.0F;
      for (const std::uint8_t channel : back) {
        const float value = s * share + static_cast<float>(channel) * (1.0F - share);
        pixels.push_back(static_cast<std::uint8_t>(std::min(value, 255.0F)));
      }
    }
  }
  return pixels;
}

BallMarker MarkerOf(int width, int height, float azimuth, float altitude) {
  const float reach =
      0.99F * static_cast<float>(RadiusOf(width, height)) * std::cos(BallRadians(altitude));
  const float angle = BallRadians(-azimuth);
  return {width / 2 + static_cast<int>(std::lround(std::cos(angle) * reach)),
          height / 2 + static_cast<int>(std::lround(std::sin(angle) * reach))};
}

}  // namespace tarnwick
