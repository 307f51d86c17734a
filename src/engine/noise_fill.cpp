#include "engine/noise_fill.h"

#include <vector>

#include "base/row_progress.h"
#include "base/truncate.h"

namespace tarnwick {
namespace {

struct Cell {
  std::size_t i0;
  std::size_t i1;
  double f0;
  double f1;
  double fade;
};

Cell CellOf(double v) {
  const int n = static_cast<int>(v + 4096);
  Cell cell{};
  cell.i0 = static_cast<std::size_t>(n & 127);
  cell.i1 = (cell.i0 + 1) & 127;
  const double f = v + 4096 - n;
  cell.f0 = f;
  cell.f1 = f - 1;
  cell.fade = ((f * 6 - 15) * f + 10) * (f * f * f);
  return cell;
}

std::size_t Hash(const PerlinNoise& noise, std::size_t i) {
  return static_cast<std::size_t>(noise.permutation[i]);
}

double NoiseInCell(const PerlinNoise& noise, const Cell& x, const Cell& y) {
  const std::size_t a = Hash(noise, x.i0);
  const std::size_t b = Hash(noise, x.i1);
  const std::size_t g00 = Hash(noise, a + y.i0);
  const std::size_t g10 = Hash(noise, b + y.i0);
  const std::size_t g01 = Hash(noise, a + y.i1);
  const std::size_t g11 = Hash(noise, b + y.i1);
  const double u0 = noise.gradientX[g00] * x.f0 + noise.gradientY[g00] * y.f0;
  const double u1 = noise.gradientX[g10] * x.f1 + noise.gradientY[g10] * y.f0;
  const double v0 = noise.gradientX[g01] * x.f0 + noise.gradientY[g01] * y.f1;
  const double v1 = noise.gradientX[g11] * x.f1 + noise.gradientY[g11] * y.f1;
  const double p = u0 + (u1 - u0) * x.fade;
  const double q = v0 + (v1 - v0) * x.fade;
  return p + (q - p) * y.fade;
}

constexpr int kOctaves = 5;
// In the order of summation: the second octave comes first.
constexpr double kFrequencies[kOctaves] = {2, 1, 4, 8, 16};
constexpr double kWeights[kOctaves] = {0.5, 1, 0.25, 0.125, 0.0625};

std::vector<double> Positions(double first, double step, int count) {
  std::vector<double> positions(static_cast<std::size_t>(count));
  double v = first;
  for (double& position : positions) {
    position = v;
    v += step;
  }
  return positions;
}

}  // namespace

double NoiseAt(const PerlinNoise& noise, double x, double y) {
  return NoiseInCell(noise, CellOf(x), CellOf(y));
}

bool FillNoise(RasterImage& image, const NoiseWindow& window, Progress* progress, ThreadPool* pool,
               Isa) {
  std::uint8_t* const pixels = image.Pixels();
  if (pixels == nullptr) return false;
  const PerlinNoise noise(window.seed);
  const int width = image.StorageWidth();
  const int height = image.StorageHeight();
  const std::vector<double> xs = Positions(window.firstX, window.stepX, width);
  const std::vector<double> ys = Positions(window.firstY, window.stepY, height);
  ForRowsReporting(pool, progress, height, [&](int first, int last) {
    for (int y = first; y < last; ++y) {
      std::uint8_t* const row = pixels + y * image.RowBytes();
      for (int x = 0; x < width; ++x) {
        double sum = 0;
        for (int o = 0; o < kOctaves; ++o) {
          const Cell cx = CellOf(xs[static_cast<std::size_t>(x)] * kFrequencies[o]);
          const Cell cy = CellOf(ys[static_cast<std::size_t>(y)] * kFrequencies[o]);
          sum += NoiseInCell(noise, cx, cy) * kWeights[o];
        }
        row[x] = static_cast<std::uint8_t>(127U + static_cast<unsigned>(TruncateToInt(sum * 127)));
      }
    }
  });
  return true;
}

}  // namespace tarnwick
