#include "toolbox/noise.h"

#include <array>

#include "toolbox/hash.h"
#include "toolbox/maths.h"

namespace tarnwick::content {
namespace {

struct Direction {
  float x, y;
};

constexpr int kDirections = 256;

constexpr std::array<Direction, kDirections> MakeDirections() {
  std::array<Direction, kDirections> table{};
  for (int i = 0; i < kDirections; ++i) {
    const float angle = (static_cast<float>(i) + 0.5F) * (kTau / static_cast<float>(kDirections));
    table[static_cast<std::size_t>(i)] = {Cos(angle), Sin(angle)};
  }
  return table;
}
constexpr std::array<Direction, kDirections> kTable = MakeDirections();

// A cheaper scramble than Hash: noise asks for four of them a layer.
constexpr std::uint32_t CornerHash(std::uint32_t x, std::uint32_t y, std::uint32_t seed) {
  std::uint32_t h = x * 0x27D4EB2DU + y * 0x165667B1U + seed * 0x9E3779B1U;
  h ^= h >> 15;
  h *= 0x2C1B3C6DU;
  h ^= h >> 13;
  h *= 0x297A2D39U;
  return h ^ (h >> 16);
}

inline float Corner(int ix, int iy, float dx, float dy, std::uint32_t seed) {
  const Direction& d =
      kTable[CornerHash(static_cast<std::uint32_t>(ix), static_cast<std::uint32_t>(iy), seed) &
             (kDirections - 1)];
  return d.x * dx + d.y * dy;
}

constexpr float Fade(float t) {
  return t * t * t * (t * (t * 6.0F - 15.0F) + 10.0F);
}

// A turn by the angle whose cosine and sine are 4/5 and 3/5: it never lines up
// with the lattice again.
inline void TurnAndDouble(float& x, float& y) {
  const float turned = (x * 0.8F - y * 0.6F) * 2.0F;
  y = (x * 0.6F + y * 0.8F) * 2.0F + 17.31F;
  x = turned + 5.77F;
}

}  // namespace

float GradientNoise(float x, float y, std::uint32_t seed) {
  const int ix = FloorInt(x);
  const int iy = FloorInt(y);
  const float fx = x - static_cast<float>(ix);
  const float fy = y - static_cast<float>(iy);
  const float sx = Fade(fx);
  const float top = Mix(Corner(ix, iy, fx, fy, seed), Corner(ix + 1, iy, fx - 1.0F, fy, seed), sx);
  const float bottom = Mix(Corner(ix, iy + 1, fx, fy - 1.0F, seed),
                           Corner(ix + 1, iy + 1, fx - 1.0F, fy - 1.0F, seed), sx);
  // Unit slopes reach sqrt(1/2) at most.
  return Mix(top, bottom, Fade(fy)) * 1.41421356F;
}

float LineNoise(float x, std::uint32_t seed) {
  const int ix = FloorInt(x);
  const float fx = x - static_cast<float>(ix);
  const float a = Unit(HashAt(ix, 0, seed));
  const float b = Unit(HashAt(ix + 1, 0, seed));
  return Mix(a, b, fx * fx * (3.0F - 2.0F * fx)) * 2.0F - 1.0F;
}

float Fbm::operator()(float x, float y) const {
  x /= period;
  y /= period;
  float sum = 0.0F;
  float height = 1.0F;
  float total = 0.0F;
  for (int i = 0; i < octaves; ++i) {
    sum += GradientNoise(x, y, seed + static_cast<std::uint32_t>(i)) * height;
    total += height;
    height *= gain;
    TurnAndDouble(x, y);
  }
  // Layers rarely peak together: 1.5 brings the sum back to about -1..1.
  return sum / total * 1.5F;
}

float Fbm::Ridged(float x, float y) const {
  x /= period;
  y /= period;
  float sum = 0.0F;
  float height = 1.0F;
  float total = 0.0F;
  for (int i = 0; i < octaves; ++i) {
    const float crest = 1.0F - Abs(GradientNoise(x, y, seed + static_cast<std::uint32_t>(i)));
    sum += crest * crest * height;
    total += height;
    height *= gain;
    TurnAndDouble(x, y);
  }
  return Clamp01(sum / total);
}

Spot Warp::operator()(const Spot& spot) const {
  Fbm other = noise;
  other.seed += 0x51ED27U;
  const float dx = noise(spot.fx, spot.fy);
  const float dy = other(spot.fx + 31.7F, spot.fy - 11.3F);
  return {spot.x, spot.y, spot.fx + dx * reach, spot.fy + dy * reach};
}

}  // namespace tarnwick::content
