#pragma once
#include <cstddef>
#include <cstdint>

namespace tarnwick {

// Rows of a plane in the order of the recursive 3x3 smoothing: the row above
// the first is already smoothed, the row below the last is not. `pixels` is the
// first sample of the first row. Width at least 3.
struct SmoothRows {
  std::uint8_t* pixels;
  std::ptrdiff_t stride;
  int width;
};

// One row: the definition.
void SmoothRowPlain(const SmoothRows& rows);

// kSmoothBand rows at once, each two columns behind the one above it.
inline constexpr int kSmoothBand = 8;

// Memory for SmoothBandAvx2, in bytes, for rows of `width`.
[[nodiscard]] constexpr std::size_t SmoothScratchBytes(int width) {
  return (static_cast<std::size_t>(width) + 4 * kSmoothBand) * 24;
}
void SmoothBandAvx2(const SmoothRows& rows, std::uint8_t* scratch);

}  // namespace tarnwick
