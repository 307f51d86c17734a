#include "engine/reference_masks.h"

#include <algorithm>
#include <climits>
#include <cmath>

#include "engine/distance_field.h"
#include "engine/perlin_noise.h"
#include "imaging/fill.h"
#include "support/images.h"
#include "support/window_sums.h"

namespace tarnwick::testing {
namespace {

double Noise(const PerlinNoise& tables, double x, double y) {
  const int nx = static_cast<int>(x + 4096);
  const int ny = static_cast<int>(y + 4096);
  const double fx = x + 4096 - nx;
  const double fy = y + 4096 - ny;
  const auto corner = [&](int dx, int dy) {
    const int a = tables.permutation[static_cast<std::size_t>((nx + dx) & 127)];
    const int b = tables.permutation[static_cast<std::size_t>(a + ((ny + dy) & 127))];
    const auto g = static_cast<std::size_t>(b);
    return tables.gradientX[g] * (fx - dx) + tables.gradientY[g] * (fy - dy);
  };
  const auto fade = [](double f) { return ((f * 6 - 15) * f + 10) * (f * f * f); };
  const double p = corner(0, 0) + (corner(1, 0) - corner(0, 0)) * fade(fx);
  const double q = corner(0, 1) + (corner(1, 1) - corner(0, 1)) * fade(fx);
  return p + (q - p) * fade(fy);
}

std::uint8_t CoverageOfNoise(int n, int keep) {
  if (keep <= 100) return n > static_cast<int>(static_cast<float>(keep) * 2.55F) ? 0 : 255;
  const auto c = static_cast<float>(keep);
  const float soft = static_cast<float>(128 - n) * (c / 100) + (c - 150) / -50 * 255 + 127;
  return static_cast<std::uint8_t>(std::clamp(static_cast<int>(soft), 0, 255));
}

Bytes Interior(const Bytes& storage, int width, int height, int margin) {
  Bytes inside;
  for (int y = 0; y < height; ++y) {
    const auto row = storage.begin() + (y + margin) * (width + 2 * margin) + margin;
    inside.insert(inside.end(), row, row + width);
  }
  return inside;
}

}  // namespace

Bytes NoiseByDefinition(int width, int height, int scale, int seed) {
  const PerlinNoise tables(static_cast<std::uint32_t>(seed));
  const double cells = 256 / std::clamp(256.0 * scale / 200, 8.0, 256.0);
  const int columns = width + 6;
  const int rows = height + 6;
  Bytes noise;
  double y = 0;
  for (int row = 0; row < rows; ++row, y += cells / rows) {
    double x = 0;
    for (int column = 0; column < columns; ++column, x += cells / columns) {
      double s = Noise(tables, 2 * x, 2 * y) * 0.5 + Noise(tables, x, y);
      for (int k = 4; k <= 16; k *= 2) s += Noise(tables, k * x, k * y) / k;
      const double wave = s * 127;
      // No number counts as the most negative one, whose low byte is 0.
      noise.push_back(
          static_cast<std::uint8_t>(127 + (std::isnan(wave) ? 0 : static_cast<int>(wave))));
    }
  }
  return noise;
}

Bytes CoverageByDefinition(int width, int height, int coverage, int scale, int seed) {
  Bytes map = NoiseByDefinition(width, height, scale, seed);
  for (std::uint8_t& sample : map) sample = CoverageOfNoise(sample, 100 - coverage);
  const ImagePtr image = GrayOf(width + 6, map, 3);
  ClearFrame(*image, 1);
  return Interior(WindowSums(StorageOf(*image), width + 6, 2), width, height, 3);
}

Bytes EdgeByDefinition(const Bytes& plane, int width, int height, int distance, int softness) {
  const ImagePtr selection = MakeGrayImage({0, 0, height, width}, 1);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const auto at = static_cast<std::size_t>(y * width + x);
      selection->Interior()[y * (width + 2) + x] = plane.empty() ? 255 : plane[at];
    }
  }
  PageBuffer<std::int32_t> field;
  std::int32_t largest = 0;
  if (!BuildDistanceField(*selection, field, largest)) return {};
  const float depth = static_cast<float>(std::sqrt(static_cast<double>(largest))) + 1;
  const auto d = static_cast<int>(static_cast<double>(depth * static_cast<float>(distance)) / 100);
  const int soft = std::clamp(softness, 0, 200);
  const int radius =
      static_cast<int>(static_cast<double>(depth * static_cast<float>(soft)) / 200) / 2;
  Bytes map = StorageOf(*selection);
  for (std::size_t i = 0; i < map.size(); ++i) {
    map[i] = field.Data()[i] < d * d || map[i] == 0 ? 0 : 255;
  }
  return Interior(radius == 0 ? map : WindowSums(map, width + 2, radius), width, height, 1);
}

}  // namespace tarnwick::testing
