#pragma once
#include <cstdint>
#include <vector>

#include "imaging/raster_image.h"

namespace tarnwick {

// The picture in the preview pane, made from what the render has left.

// A window of the document at a scale.
struct PaneWindow {
  int originX = 0, originY = 0;  // in shown pixels
  int width = 0, height = 0;
  float scale = 1;
};

// What lies under the result: `below` sampled by nearest neighbour for the window,
// three bytes a pixel, rows without padding. With a fourth plane it stands on a grid
// of 7-pixel squares in 255 and 204. Empty when `below` has no pixels.
[[nodiscard]] std::vector<std::uint8_t> BuildBackdrop(const RasterImage& below,
                                                      const PaneWindow& window);

// The result as the host's buffer holds it.
struct PaneSource {
  const std::uint8_t* samples = nullptr;  // interleaved, 8 or 16 bits, low byte first
  std::ptrdiff_t rowBytes = 0;
  int planes = 3;
  bool is16Bit = false;
  // Planes are those of a CMYK document: its fourth is no alpha of its own.
  bool isCmyk = false;
};

// Rows from the bottom up, three bytes a pixel in the order blue, green, red, as a
// bitmap has them; `width` is a multiple of 4, so no row is padded. Transparency
// shows the backdrop, or black without one (null) or one that does not count.
[[nodiscard]] std::vector<std::uint8_t> BuildPaneBitmap(const PaneSource& source, int width,
                                                        int height, const std::uint8_t* backdrop,
                                                        int backdropWidth);

// One sample of a 16-bit host, where 32768 is white.
[[nodiscard]] std::uint8_t ByteOf16(std::uint16_t sample);

}  // namespace tarnwick
