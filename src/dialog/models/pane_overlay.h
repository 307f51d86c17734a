#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarnwick {

// Blends marks into a bitmap of the pane (bottom row first, three bytes a pixel, rows
// unpadded): a mark of 255 gives 0xC0C0C0, less a part of it, 0 leaves the pixel.
// `overlay` has a byte a pixel, rows from the top; of another size it does nothing.
inline void MarkPixels(std::uint8_t* pixels, int width, int height,
                       const std::vector<std::uint8_t>& overlay) {
  constexpr int kMarked = 0xC0;
  const auto rowLength = static_cast<std::size_t>(width);
  const auto rows = static_cast<std::size_t>(height);
  if (overlay.empty() || overlay.size() != rowLength * rows) return;
  for (std::size_t row = 0; row < rows; ++row) {
    std::uint8_t* pixel = pixels + (rows - 1 - row) * rowLength * 3;
    for (std::size_t x = 0; x < rowLength; ++x, pixel += 3) {
      const int mark = overlay[row * rowLength + x];
      for (int i = 0; i < 3; ++i) {
        pixel[i] = static_cast<std::uint8_t>(pixel[i] + (kMarked - pixel[i]) * mark / 255);
      }
    }
  }
}

}  // namespace tarnwick
