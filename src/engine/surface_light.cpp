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

void LightRow(const SurfaceLight& light, const std::uint8_t* depth, std::ptrdiff_t stride,
              int width, int height, int y, float* __restrict out) {
  const std::uint8_t* const row = depth + y * stride;
  // The row whose difference to this one counts, and which way round.
  const bool lastRow = y == height - 1;
  const std::uint8_t* const other = lastRow ? (height > 1 ? row - stride : row) : row + stride;
  const int down = lastRow ? -1 : 1;
  for (int x = 0; x + 1 < width; ++x) {
    const int c = row[x];
    const auto dx = static_cast<float>(row[x + 1] - c);
    const auto dy = static_cast<float>(down * (other[x] - c));
    out[x] = (dy * light.y + dx * light.x) * light.slope + light.z;
  }
  const int x = width - 1;
  const int c = row[x];
  const auto dx = static_cast<float>(width > 1 ? c - row[x - 1] : 0);
  const auto dy = static_cast<float>(down * (other[x] - c));
  out[x] = (dy * light.y + dx * light.x) * light.slope + light.z;
}

}  // namespace tarnwick
