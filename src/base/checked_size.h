#pragma once
#include <cstddef>
#include <cstdint>

namespace tarnwick {

// The largest picture or texture side that is accepted, in pixels. Everything
// larger is refused before a size is multiplied.
inline constexpr int kMaxPictureSide = 30000;

// True for a width and height of 1..kMaxPictureSide.
[[nodiscard]] constexpr bool IsPictureSize(std::int64_t width, std::int64_t height) {
  return width >= 1 && height >= 1 && width <= kMaxPictureSide && height <= kMaxPictureSide;
}

// a * b, or false when the product does not fit a std::size_t.
[[nodiscard]] constexpr bool CheckedProduct(std::size_t a, std::size_t b, std::size_t& product) {
  if (a != 0 && b > SIZE_MAX / a) return false;
  product = a * b;
  return true;
}

}  // namespace tarnwick
