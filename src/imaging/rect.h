#pragma once
#include <cstdint>

namespace tarnwick {

// A rectangle as the host has it; right and bottom lie outside.
struct Rect {
  std::int32_t top = 0;
  std::int32_t left = 0;
  std::int32_t bottom = 0;
  std::int32_t right = 0;

  [[nodiscard]] std::int32_t Width() const { return right - left; }
  [[nodiscard]] std::int32_t Height() const { return bottom - top; }

  void Offset(std::int32_t dx, std::int32_t dy) {
    left += dx;
    right += dx;
    top += dy;
    bottom += dy;
  }
  void Intersect(const Rect& other) {
    if (other.top > top) top = other.top;
    if (other.left > left) left = other.left;
    if (other.bottom < bottom) bottom = other.bottom;
    if (other.right < right) right = other.right;
  }
  // Swaps width and height; the top left corner stays.
  void Transpose() {
    const std::int32_t width = Width();
    right = left + Height();
    bottom = top + width;
  }
};

}  // namespace tarnwick
