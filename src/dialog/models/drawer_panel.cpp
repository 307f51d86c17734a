#include "dialog/models/drawer_panel.h"

namespace tarnwick {

std::vector<std::uint8_t> BuildDrawerPanel(const StripShade& shade, const FaceColor& face,
                                           int width, int height) {
  if (width < 1 || height < 1) return {};
  const auto rowBytes = static_cast<std::size_t>(StripRowBytes(width));
  std::vector<std::uint8_t> pixels(rowBytes * static_cast<std::size_t>(height));
  // Columns of the shade run from the edge inwards.
  const auto putRow = [&](int y, const std::array<float, kShadeColumns>& parts) {
    if (y < 0 || y >= height) return;
    for (int x = 0; x < kShadeColumns && x < width; ++x) {
      std::uint8_t* const pixel = pixels.data() + static_cast<std::size_t>(y) * rowBytes +
                                  static_cast<std::size_t>(width - 1 - x) * 3;
      for (std::size_t i = 0; i < face.size(); ++i) {
        pixel[i] = static_cast<std::uint8_t>(static_cast<float>(face[i]) *
                                             parts[static_cast<std::size_t>(x)]);
      }
    }
  };
  for (int row = 0; row < kStripRows; ++row) {
    putRow(row, shade[static_cast<std::size_t>(kStripRows - 1 - row)]);
  }
  for (int row = 0; row < kStripRows; ++row) {
    putRow(height - kStripRows + row, shade[static_cast<std::size_t>(row)]);
  }
  return pixels;
}

}  // namespace tarnwick
