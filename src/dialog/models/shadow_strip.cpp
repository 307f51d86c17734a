#include "dialog/models/shadow_strip.h"

namespace tarnwick {

std::vector<std::uint8_t> BuildShadowStrip(const StripShade& shade, const FaceColor& face,
                                           int width, bool isUpper) {
  if (width < 1) return {};
  const auto rowBytes = static_cast<std::size_t>(StripRowBytes(width));
  std::vector<std::uint8_t> pixels(rowBytes * kStripRows);
  const auto put = [&](std::size_t row, int x, float part) {
    if (x < 0 || x >= width) return;
    std::uint8_t* const pixel = pixels.data() + row * rowBytes + static_cast<std::size_t>(x) * 3;
    for (std::size_t i = 0; i < face.size(); ++i) {
      pixel[i] = static_cast<std::uint8_t>(static_cast<float>(face[i]) * part);
    }
  };
  for (std::size_t row = 0; row < kStripRows; ++row) {
    const auto& shades = shade[isUpper ? kStripRows - 1 - row : row];
    for (int x = 0; x < kShadeColumns; ++x) put(row, x, shades[static_cast<std::size_t>(x)]);
    for (int x = 0; x < kShadeColumns; ++x) {
      put(row, width - 1 - x, shades[static_cast<std::size_t>(x)]);
    }
  }
  return pixels;
}

}  // namespace tarnwick
