// Each sample waits for its left and upper neighbours, so one row alone leaves
// the processor idle. Eight rows go side by side instead, one lane each: at step
// t lane k stands at column t - 2k, and all that it needs from the lane above
// was finished a step ago.
#include <immintrin.h>

#include <cstring>

#include "imaging/smooth_rows.h"

namespace tarnwick {
namespace {

constexpr int kLanes = kSmoothBand;
constexpr int kSlant = 2;
constexpr int kInStride = 16;  // nine rows: the band and the one below it
// The last lane starts kSlant * (kLanes - 1) steps after the first, and reads two
// steps ahead.
constexpr int kExtra = kSlant * kLanes + 4;

// Sample x of row k to step x + 2k, lane k. What lies between the rows' ends
// stays 0 and is never used.
void Slant(const SmoothRows& rows, std::uint8_t* slanted) {
  const auto steps = static_cast<std::size_t>(rows.width + kExtra);
  std::memset(slanted, 0, steps * kInStride);
  for (int k = 0; k <= kLanes; ++k) {
    const std::uint8_t* const row = rows.pixels + k * rows.stride;
    std::uint8_t* const out = slanted + kSlant * k * kInStride + k;
    for (int x = 0; x < rows.width; ++x) out[x * kInStride] = row[x];
  }
}

void Straighten(const std::uint8_t* slanted, const SmoothRows& rows) {
  for (int k = 0; k < kLanes; ++k) {
    std::uint8_t* const row = rows.pixels + k * rows.stride;
    const std::uint8_t* const in = slanted + kSlant * k * kLanes + k;
    for (int x = 1; x < rows.width - 1; ++x) row[x] = in[x * kLanes];
  }
}

__m256 LoadLanes(const std::uint8_t* samples) {
  const __m128i bytes = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(samples));
  return _mm256_cvtepi32_ps(_mm256_cvtepu8_epi32(bytes));
}

// Every lane takes the value of the one above it; the first takes `first`.
__m256 FromLaneAbove(__m256 lanes, float first) {
  const __m256i order = _mm256_setr_epi32(0, 0, 1, 2, 3, 4, 5, 6);
  const __m256 moved = _mm256_permutevar8x32_ps(lanes, order);
  return _mm256_blend_ps(moved, _mm256_set1_ps(first), 1);
}

void StoreLanes(__m256i lanes, std::uint8_t* out) {
  const __m128i low = _mm256_castsi256_si128(lanes);
  const __m128i high = _mm256_extracti128_si256(lanes, 1);
  const __m128i words = _mm_packus_epi32(low, high);
  _mm_storel_epi64(reinterpret_cast<__m128i*>(out), _mm_packus_epi16(words, words));
}

}  // namespace

void SmoothBandAvx2(const SmoothRows& rows, std::uint8_t* scratch) {
  std::uint8_t* const in = scratch;
  std::uint8_t* const out = scratch + static_cast<std::size_t>(rows.width + kExtra) * kInStride;
  Slant(rows, in);
  const std::uint8_t* const above = rows.pixels - rows.stride;

  const __m256 corner = _mm256_set1_ps(0.05F);
  const __m256 side = _mm256_set1_ps(0.1F);
  const __m256 centre = _mm256_set1_ps(0.4F);
  const __m256 white = _mm256_set1_ps(255.0F);
  const __m256i lastColumn = _mm256_set1_epi32(rows.width - 1);
  __m256i column = _mm256_setr_epi32(0, -2, -4, -6, -8, -10, -12, -14);

  // Lane k at step t, column x = t - 2k: own row from in[t][k], the row below
  // from in[t + 2][k + 1], the row above from the results of step t - 2.
  __m256 own = LoadLanes(in);
  __m256 belowLeft = LoadLanes(in + kInStride + 1);
  __m256 below = LoadLanes(in + 2 * kInStride + 1);
  __m256 upperLeft = _mm256_setzero_ps();
  __m256 upper = _mm256_blend_ps(upperLeft, _mm256_set1_ps(above[0]), 1);
  __m256 result = _mm256_setzero_ps();
  const int steps = rows.width + kSlant * (kLanes - 1);
  for (int t = 0; t < steps; ++t) {
    const __m256 right = LoadLanes(in + (t + 1) * kInStride);
    const __m256 belowRight = LoadLanes(in + (t + 3) * kInStride + 1);
    const float next = t + 1 < rows.width ? above[t + 1] : 0;
    const __m256 upperRight = FromLaneAbove(result, next);

    // In the order of the definition.
    __m256 sum = _mm256_mul_ps(corner, upperLeft);
    sum = _mm256_add_ps(sum, _mm256_mul_ps(side, upper));
    sum = _mm256_add_ps(sum, _mm256_mul_ps(corner, upperRight));
    sum = _mm256_add_ps(sum, _mm256_mul_ps(side, result));
    sum = _mm256_add_ps(sum, _mm256_mul_ps(centre, own));
    sum = _mm256_add_ps(sum, _mm256_mul_ps(side, right));
    sum = _mm256_add_ps(sum, _mm256_mul_ps(corner, belowLeft));
    sum = _mm256_add_ps(sum, _mm256_mul_ps(side, below));
    sum = _mm256_add_ps(sum, _mm256_mul_ps(corner, belowRight));
    const __m256i smoothed = _mm256_cvttps_epi32(_mm256_min_ps(sum, white));

    // First and last columns stay as they are.
    const __m256i inside = _mm256_and_si256(_mm256_cmpgt_epi32(column, _mm256_setzero_si256()),
                                            _mm256_cmpgt_epi32(lastColumn, column));
    const __m256i kept = _mm256_blendv_epi8(_mm256_cvttps_epi32(own), smoothed, inside);
    StoreLanes(kept, out + t * kLanes);

    result = _mm256_cvtepi32_ps(kept);
    upperLeft = upper;
    upper = upperRight;
    own = right;
    belowLeft = below;
    below = belowRight;
    column = _mm256_add_epi32(column, _mm256_set1_epi32(1));
  }
  Straighten(out, rows);
}

}  // namespace tarnwick
