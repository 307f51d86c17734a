#include "dialog/models/pane_image.h"

#include <algorithm>
#include <cstring>

#include "imaging/nearest_places.h"

namespace tarnwick {
namespace {

constexpr int kColors = 3;
constexpr int kGridSquare = 7;

std::uint8_t Mixed(int over, int under, float share) {
  return static_cast<std::uint8_t>(static_cast<float>(over) * share +
                                   static_cast<float>(under) * (1.0F - share));
}

int GridAt(int x, int y) {
  return ((x / kGridSquare + y / kGridSquare) & 1) != 0 ? 255 : 204;
}

}  // namespace

std::vector<std::uint8_t> BuildBackdrop(const RasterImage& below, const PaneWindow& window) {
  const std::uint8_t* const from = below.PeekInterior();
  if (from == nullptr || window.width < 1 || window.height < 1) return {};
  const auto columns = NearestPlaces(window.originX, window.width, window.scale, below.Width());
  const auto rows = NearestPlaces(window.originY, window.height, window.scale, below.Height());
  const std::uint8_t* planes[4];
  for (int i = 0; i < 4; ++i) {
    planes[i] =
        from + (i < below.planeCount ? static_cast<std::size_t>(i) * below.PlaneBytes() : 0);
  }
  const bool hasAlpha = below.planeCount >= 4;
  std::vector<std::uint8_t> pixels;
  pixels.reserve(columns.size() * rows.size() * kColors);
  for (int y = 0; y < window.height; ++y) {
    for (int x = 0; x < window.width; ++x) {
      const std::ptrdiff_t at = rows[static_cast<std::size_t>(y)] * below.RowBytes() +
                                columns[static_cast<std::size_t>(x)];
      const float share = hasAlpha ? static_cast<float>(planes[3][at]) / 255.0F : 1.0F;
      for (int c = 0; c < kColors; ++c) {
        pixels.push_back(hasAlpha ? Mixed(planes[c][at], GridAt(x, y), share) : planes[c][at]);
      }
    }
  }
  return pixels;
}

std::vector<std::uint8_t> BuildPaneBitmap(const PaneSource& source, int width, int height,
                                          const std::uint8_t* backdrop, int backdropWidth) {
  std::vector<std::uint8_t> bitmap;
  if (source.samples == nullptr || width < 1 || height < 1) return bitmap;
  bitmap.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * kColors);
  // In a CMYK document without transparency there is nothing to see through to.
  const bool showsBackdrop = backdrop != nullptr && (!source.isCmyk || source.planes >= 5);
  const int colors = std::min(source.planes, kColors);
  for (int y = 0; y < height; ++y) {
    const std::uint8_t* const row = source.samples + y * source.rowBytes;
    std::uint8_t* to =
        bitmap.data() + static_cast<std::ptrdiff_t>(height - 1 - y) * width * kColors;
    for (int x = 0; x < width; ++x, to += kColors) {
      for (int c = 0; c < kColors; ++c) {
        const int at = x * source.planes + std::min(c, colors - 1);
        std::uint8_t* const out = to + (kColors - 1 - c);
        if (source.is16Bit) {
          std::uint16_t sample = 0;
          std::memcpy(&sample, row + at * 2, sizeof sample);
          *out = ByteOf16(sample);
          continue;
        }
        const std::uint8_t alpha = source.planes >= 4 ? row[x * source.planes + 3] : 255;
        if (alpha == 255) {
          *out = row[at];
          continue;
        }
        const int under =
            showsBackdrop
                ? backdrop[(static_cast<std::ptrdiff_t>(y) * backdropWidth + x) * kColors + c]
                : 0;
        *out = Mixed(row[at], under, static_cast<float>(alpha) / 255.0F);
      }
    }
  }
  return bitmap;
}

std::uint8_t ByteOf16(std::uint16_t sample) {
  constexpr int kAlmostWhite = 32640;
  return (sample & 0xFF80) > kAlmostWhite ? 255 : static_cast<std::uint8_t>(sample >> 7);
}

}  // namespace tarnwick
