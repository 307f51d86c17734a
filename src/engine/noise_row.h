#pragma once
#include <cstdint>

namespace tarnwick {

// A stretch of a row of noise that stays within one cell: `count` columns. The
// gradients at the four corners of the cell are split into what goes with the
// column (gx) and what the row adds (gy times the row's distance).
struct NoiseRun {
  const double* f0;    // distance of each column to the cell's left side, 0..1
  const double* fade;  // the fade of each column
  double* sum;         // weight times noise is added
  int count;
  double gx00, gx10, gx01, gx11;
  double rest00, rest10, rest01, rest11;
  double rowFade;
  double weight;
};

// 127 + trunc(sum * 127), modulo 256; NaN gives 127.
struct NoiseBytes {
  const double* sum;
  std::uint8_t* out;
  int count;
};

void NoiseRunPlain(const NoiseRun& run);
void NoiseRunAvx2(const NoiseRun& run);
void NoiseBytesPlain(const NoiseBytes& bytes);
void NoiseBytesAvx2(const NoiseBytes& bytes);

}  // namespace tarnwick
