// Included by enlarge_row.cpp and enlarge_row_avx2.cpp alone: one source, once
// for each instruction set. No contraction, so the bytes are the same. This is
// the definition.
#include "imaging/enlarge_row.h"

namespace tarnwick {
namespace {

inline void EnlargeRowKernel(const EnlargeRowArgs& args) {
  const std::uint8_t* __restrict p00 = args.upperLeft;
  const std::uint8_t* __restrict p01 = args.upperRight;
  const std::uint8_t* __restrict p10 = args.lowerLeft;
  const std::uint8_t* __restrict p11 = args.lowerRight;
  const double* __restrict fx2 = args.fx2;
  const double* __restrict gx2 = args.gx2;
  std::uint8_t* __restrict out = args.out;
  const double fy2 = args.fy2;
  const double gy2 = args.gy2;
  for (int x = 0; x < args.width; ++x) {
    double w00 = gy2 + gx2[x];
    double w01 = fx2[x] + gy2;
    double w10 = fy2 + gx2[x];
    double w11 = fy2 + fx2[x];
    // f + g is 1 in each direction, so the sum is never near 0.
    const double sum = w00 + w01 + w10 + w11;
    w00 /= sum;
    w01 /= sum;
    w10 /= sum;
    w11 /= sum;
    const double blend = p00[x] * w00 + p01[x] * w01 + p10[x] * w10 + p11[x] * w11;
    // Rounded to 32 bits first: a flat area has to stay flat.
    out[x] = static_cast<std::uint8_t>(static_cast<int>(static_cast<float>(blend)));
  }
}

}  // namespace
}  // namespace tarnwick
