// The quotient of the weighted sum, in 32 bits and eight at a time, tells the
// sample wherever it does not come close to a whole number; there the definition
// decides, whose own rounding matters then. Flat areas are whole numbers
// throughout, but for them the definition gives the value itself: the weights
// add up to 1 within 1e-15, and the sum is rounded to 32 bits.
#include <algorithm>
#include <cstdint>

#include "imaging/enlarge_row_kernel.h"

namespace tarnwick {
namespace {

constexpr int kBlock = 64;
// The 32-bit quotient is off by ten roundings of 2^-24 at most, 1.6e-4 at 255,
// and the definition's last rounding by 8e-6.
constexpr float kDoubt = 1.0F / 1024;
// From so many doubtful samples on, the vectors of the definition are faster.
constexpr int kManyDoubts = 8;

EnlargeRowArgs Part(const EnlargeRowArgs& row, int first, int count) {
  EnlargeRowArgs part = row;
  part.upperLeft += first;
  part.upperRight += first;
  part.lowerLeft += first;
  part.lowerRight += first;
  part.fx2 += first;
  part.gx2 += first;
  part.out += first;
  part.width = count;
  return part;
}

// Writes all samples and marks the doubtful ones; returns how many they are.
int EstimateBlock(const EnlargeRowArgs& args, std::uint8_t* __restrict doubtful) {
  const std::uint8_t* __restrict p00 = args.upperLeft;
  const std::uint8_t* __restrict p01 = args.upperRight;
  const std::uint8_t* __restrict p10 = args.lowerLeft;
  const std::uint8_t* __restrict p11 = args.lowerRight;
  const double* __restrict fx2 = args.fx2;
  const double* __restrict gx2 = args.gx2;
  std::uint8_t* __restrict out = args.out;
  const auto fy2 = static_cast<float>(args.fy2);
  const auto gy2 = static_cast<float>(args.gy2);
  int doubts = 0;
  for (int x = 0; x < kBlock; ++x) {
    const int a = p00[x];
    const int b = p01[x];
    const int c = p10[x];
    const int d = p11[x];
    const auto fx = static_cast<float>(fx2[x]);
    const auto gx = static_cast<float>(gx2[x]);
    const float weighted = gy2 * static_cast<float>(a + b) + fy2 * static_cast<float>(c + d) +
                           gx * static_cast<float>(a + c) + fx * static_cast<float>(b + d);
    const float v = weighted / (2.0F * (fx + gx + fy2 + gy2));
    const int whole = static_cast<int>(v);
    const float rest = v - static_cast<float>(whole);
    const bool flat = ((a ^ b) | (a ^ c) | (a ^ d)) == 0;
    const bool near = (rest < kDoubt) | (rest > 1.0F - kDoubt);
    const int doubt = static_cast<int>(near) & static_cast<int>(!flat);
    out[x] = static_cast<std::uint8_t>(flat ? a : whole);
    doubtful[x] = static_cast<std::uint8_t>(doubt);
    doubts += doubt;
  }
  return doubts;
}

}  // namespace

void EnlargeRowAvx2(const EnlargeRowArgs& args) {
  std::uint8_t doubtful[kBlock];
  int first = 0;
  for (; first + kBlock <= args.width; first += kBlock) {
    const EnlargeRowArgs block = Part(args, first, kBlock);
    const int doubts = EstimateBlock(block, doubtful);
    if (doubts == 0) continue;
    if (doubts >= kManyDoubts) {
      EnlargeRowKernel(block);
      continue;
    }
    for (int x = 0; x < kBlock; ++x) {
      if (doubtful[x] != 0) EnlargeRowKernel(Part(block, x, 1));
    }
  }
  EnlargeRowKernel(Part(args, first, args.width - first));
}

}  // namespace tarnwick
