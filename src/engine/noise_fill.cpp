#include "engine/noise_fill.h"

#include <algorithm>
#include <vector>

#include "base/row_progress.h"
#include "engine/noise_row.h"

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

// The corners of a cell, and what the row adds at each.
struct Corners {
  std::size_t g00, g10, g01, g11;

  Corners(const PerlinNoise& noise, std::size_t x0, std::size_t x1, const Cell& y) {
    const std::size_t a = Hash(noise, x0);
    const std::size_t b = Hash(noise, x1);
    g00 = Hash(noise, a + y.i0);
    g10 = Hash(noise, b + y.i0);
    g01 = Hash(noise, a + y.i1);
    g11 = Hash(noise, b + y.i1);
  }
};

constexpr int kOctaves = 5;
// In the order of summation: the second octave comes first.
constexpr double kFrequencies[kOctaves] = {2, 1, 4, 8, 16};
constexpr double kWeights[kOctaves] = {0.5, 1, 0.25, 0.125, 0.0625};

// All columns of one octave, and where the runs within one cell begin.
struct OctaveColumns {
  std::vector<double> f0;
  std::vector<double> fade;
  std::vector<int> starts;         // of the runs; the last entry is the width
  std::vector<std::size_t> cells;  // i0 of each run

  OctaveColumns(const NoiseWindow& window, double frequency, int width) {
    double v = window.firstX;
    for (int x = 0; x < width; ++x, v += window.stepX) {
      const Cell cell = CellOf(v * frequency);
      if (cells.empty() || cells.back() != cell.i0) {
        starts.push_back(x);
        cells.push_back(cell.i0);
      }
      f0.push_back(cell.f0);
      fade.push_back(cell.fade);
    }
    starts.push_back(width);
  }
};

struct Kernels {
  void (*run)(const NoiseRun&);
  void (*bytes)(const NoiseBytes&);
};

// Adds one octave of row `y` to the sums.
void AddOctave(const PerlinNoise& noise, const OctaveColumns& columns, const Cell& y, double weight,
               const Kernels& kernels, double* sums) {
  for (std::size_t i = 0; i < columns.cells.size(); ++i) {
    const std::size_t i0 = columns.cells[i];
    const Corners g(noise, i0, (i0 + 1) & 127, y);
    const auto first = static_cast<std::size_t>(columns.starts[i]);
    NoiseRun run{};
    run.f0 = columns.f0.data() + first;
    run.fade = columns.fade.data() + first;
    run.sum = sums + first;
    run.count = columns.starts[i + 1] - columns.starts[i];
    run.gx00 = noise.gradientX[g.g00];
    run.gx10 = noise.gradientX[g.g10];
    run.gx01 = noise.gradientX[g.g01];
    run.gx11 = noise.gradientX[g.g11];
    run.rest00 = noise.gradientY[g.g00] * y.f0;
    run.rest10 = noise.gradientY[g.g10] * y.f0;
    run.rest01 = noise.gradientY[g.g01] * y.f1;
    run.rest11 = noise.gradientY[g.g11] * y.f1;
    run.rowFade = y.fade;
    run.weight = weight;
    kernels.run(run);
  }
}

}  // namespace

double NoiseAt(const PerlinNoise& noise, double x, double y) {
  const Cell cx = CellOf(x);
  const Cell cy = CellOf(y);
  const Corners g(noise, cx.i0, cx.i1, cy);
  const double u0 = noise.gradientX[g.g00] * cx.f0 + noise.gradientY[g.g00] * cy.f0;
  const double u1 = noise.gradientX[g.g10] * cx.f1 + noise.gradientY[g.g10] * cy.f0;
  const double v0 = noise.gradientX[g.g01] * cx.f0 + noise.gradientY[g.g01] * cy.f1;
  const double v1 = noise.gradientX[g.g11] * cx.f1 + noise.gradientY[g.g11] * cy.f1;
  const double p = u0 + (u1 - u0) * cx.fade;
  const double q = v0 + (v1 - v0) * cx.fade;
  return p + (q - p) * cy.fade;
}

bool FillNoise(RasterImage& image, const NoiseWindow& window, Progress* progress, ThreadPool* pool,
               Isa isa) {
  std::uint8_t* const pixels = image.Pixels();
  if (pixels == nullptr) return false;
  const PerlinNoise noise(window.seed);
  const int width = image.StorageWidth();
  const int height = image.StorageHeight();
  std::vector<OctaveColumns> columns;
  for (const double frequency : kFrequencies) columns.emplace_back(window, frequency, width);
  std::vector<double> ys(static_cast<std::size_t>(height));
  double v = window.firstY;
  for (double& y : ys) {
    y = v;
    v += window.stepY;
  }
  const Kernels kernels = isa == Isa::kAvx2 ? Kernels{NoiseRunAvx2, NoiseBytesAvx2}
                                            : Kernels{NoiseRunPlain, NoiseBytesPlain};
  ForRowsReporting(pool, progress, height, [&](int first, int last) {
    std::vector<double> sums(static_cast<std::size_t>(width));
    for (int y = first; y < last; ++y) {
      std::fill(sums.begin(), sums.end(), 0.0);
      for (std::size_t o = 0; o < columns.size(); ++o) {
        const Cell cell = CellOf(ys[static_cast<std::size_t>(y)] * kFrequencies[o]);
        AddOctave(noise, columns[o], cell, kWeights[o], kernels, sums.data());
      }
      kernels.bytes({sums.data(), pixels + y * image.RowBytes(), width});
    }
  });
  return true;
}

}  // namespace tarnwick
