#include "engine/surface_light.h"

#include <algorithm>
#include <cmath>

#include "base/portable_math.h"

namespace tarnwick {
namespace {

// Not quite pi; the direction of every recorded light depends on it.
constexpr double kPi = 3.141592;

float FromHalfTurn(float degrees) {
  return static_cast<float>(kPi - static_cast<double>(degrees) * kPi / 180);
}

float Sin(float radians) {
  return static_cast<float>(PortableSin(radians));
}
float Cos(float radians) {
  return static_cast<float>(PortableCos(radians));
}

}  // namespace

float GoverningDepth(const EffectSettings& settings) {
  std::int32_t depth = settings.SurfaceDepth1;
  if (settings.SecondSurfaceExists != 0) depth = std::max(depth, settings.SurfaceDepth2);
  return static_cast<float>(depth);
}

SurfaceLight LightOf(const EffectSettings& settings, float viewScale) {
  const float b = FromHalfTurn(settings.SurfaceLightBeta);
  const float a = FromHalfTurn(settings.SurfaceLightAlpha);
  SurfaceLight light;
  light.x = Cos(a) * Cos(b);
  light.y = Sin(a) * Cos(b);
  light.z = Sin(b);
  const float n = std::sqrt(light.x * light.x + light.z * light.z + light.y * light.y);
  if (n != 0.0F && n != 1.0F) {
    light.x /= n;
    light.y /= n;
    light.z /= n;
  }
  light.slope = std::sqrt(GoverningDepth(settings) / 100.0F) * 150.0F / viewScale / 5000.0F;
  return light;
}

void LightRow(const SurfaceLight& light, const std::uint8_t* row, const std::uint8_t* next,
              bool nextIsAbove, int width, float* __restrict out) {
  const int down = nextIsAbove ? -1 : 1;
  const auto lit = [&](int dx, int dy) {
    return (static_cast<float>(dy) * light.y + static_cast<float>(dx) * light.x) * light.slope +
           light.z;
  };
  for (int x = 0; x + 1 < width; ++x) {
    const int c = row[x];
    out[x] = lit(row[x + 1] - c, down * (next[x] - c));
  }
  const int x = width - 1;
  const int c = row[x];
  out[x] = lit(width > 1 ? c - row[x - 1] : 0, down * (next[x] - c));
}

}  // namespace tarnwick
