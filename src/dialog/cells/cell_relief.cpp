#include "dialog/cells/cell_relief.h"

#include <algorithm>
#include <cmath>

#include "base/portable_math.h"
#include "engine/surface_light.h"

namespace tarnwick {
namespace {

// Not quite pi, as for the light of the render.
constexpr double kPi = 3.141592;

float Sin(double radians) {
  return static_cast<float>(PortableSin(radians));
}
float Cos(double radians) {
  return static_cast<float>(PortableCos(radians));
}

// In place, from the first row on: what lies before a point is smoothed already.
void SmoothInterior(std::ptrdiff_t width, std::ptrdiff_t height, std::vector<float>& heights) {
  for (std::ptrdiff_t y = 1; y + 1 < height; ++y) {
    float* const row = heights.data() + y * width;
    for (std::ptrdiff_t x = 1; x + 1 < width; ++x) {
      row[x] = (row[x] + row[x - 1] + row[x + 1] + row[x - width] + row[x + width]) / 5.0F;
    }
  }
}

}  // namespace

CellLight CellLightOf(const EffectSettings& settings, float step) {
  const auto b =
      static_cast<float>(kPi - static_cast<double>(settings.SurfaceLightBeta) * kPi / 180);
  const auto a =
      static_cast<float>(static_cast<double>(settings.SurfaceLightAlpha) * kPi / 180 + kPi);
  const float level = Cos(b);
  CellLight light;
  light.x = Cos(a) * level;
  light.y = Sin(b);
  light.z = Sin(a) * level;
  const float n = std::sqrt(light.x * light.x + light.y * light.y + light.z * light.z);
  if (n != 0.0F && n != 1.0F) {
    light.x /= n;
    light.y /= n;
    light.z /= n;
  }
  light.slope = std::sqrt(GoverningDepth(settings) / 100.0F) * 150.0F / step / 5000.0F;
  return light;
}

std::vector<float> CellHeights(const ThumbnailPicture& picture, bool invert, float factor) {
  const std::ptrdiff_t width = picture.width;
  const std::ptrdiff_t height = picture.height;
  std::vector<float> heights;
  heights.reserve(static_cast<std::size_t>(width * height));
  for (std::ptrdiff_t y = height - 1; y >= 0; --y) {
    const std::uint8_t* const row = picture.samples.data() + y * width * 3;
    for (std::ptrdiff_t x = 0; x < width; ++x) {
      const int grey = row[3 * x];
      heights.push_back(factor * static_cast<float>(invert ? 255 - grey : grey));
    }
  }
  SmoothInterior(width, height, heights);
  return heights;
}

void LightCell(const CellLight& light, int width, std::vector<float>& heights) {
  const std::ptrdiff_t w = width;
  const std::ptrdiff_t rows = static_cast<std::ptrdiff_t>(heights.size()) / w;
  // The row before, which brightness has taken the place of; the last row needs it.
  std::vector<float> before(static_cast<std::size_t>(w));
  for (std::ptrdiff_t y = 0; y < rows; ++y) {
    float* const row = heights.data() + y * w;
    const bool isLast = y + 1 == rows;
    float left = 0;
    for (std::ptrdiff_t x = 0; x < w; ++x) {
      const float h = row[x];
      float& above = before[static_cast<std::size_t>(x)];
      const float below = !isLast ? row[x + w] : y > 0 ? 2.0F * h - above : h;
      const float right = x + 1 < w ? row[x + 1] : x > 0 ? 2.0F * h - left : h;
      row[x] = ((below - h) * light.z + (right - h) * light.x) * light.slope + light.y;
      above = left = h;
    }
  }
}

}  // namespace tarnwick
