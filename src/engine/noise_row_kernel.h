// Included by noise_row.cpp and noise_row_avx2.cpp alone: one source, once for
// each instruction set. No contraction, so the bytes are the same.
#include <climits>

#include "engine/noise_row.h"

namespace tarnwick {
namespace {

inline void NoiseRunKernel(const NoiseRun& run) {
  const double* __restrict f0s = run.f0;
  const double* __restrict fades = run.fade;
  double* __restrict sum = run.sum;
  const NoiseRun r = run;
  for (int x = 0; x < r.count; ++x) {
    const double f0 = f0s[x];
    const double f1 = f0 - 1;
    const double u0 = r.gx00 * f0 + r.rest00;
    const double u1 = r.gx10 * f1 + r.rest10;
    const double v0 = r.gx01 * f0 + r.rest01;
    const double v1 = r.gx11 * f1 + r.rest11;
    const double p = u0 + (u1 - u0) * fades[x];
    const double q = v0 + (v1 - v0) * fades[x];
    sum[x] += (p + (q - p) * r.rowFade) * r.weight;
  }
}

inline void NoiseBytesKernel(const NoiseBytes& bytes) {
  const double* __restrict sum = bytes.sum;
  std::uint8_t* __restrict out = bytes.out;
  for (int x = 0; x < bytes.count; ++x) {
    const double scaled = sum[x] * 127;
    // No sum comes near the ends of an int, but it may be no number.
    const int whole = scaled == scaled ? static_cast<int>(scaled) : INT_MIN;
    out[x] = static_cast<std::uint8_t>(127U + static_cast<unsigned>(whole));
  }
}

}  // namespace
}  // namespace tarnwick
