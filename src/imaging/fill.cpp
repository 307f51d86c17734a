#include "imaging/fill.h"

#include <algorithm>
#include <cstring>

namespace tarnwick {
namespace {

// Modes 7 and 8 have no conversion; their planes take the channels as they are.
bool HasNoConversion(std::uint16_t mode) {
  return mode == 7 || mode == 8;
}

ColorChannels PlainConversion(const ColorChannels& rgb, std::uint16_t mode) {
  if (mode == kGrayMode) {
    const int gray = (rgb[0] * 77 + rgb[1] * 150 + rgb[2] * 29) >> 8;
    return {static_cast<std::int16_t>(gray), 0, 0, 0};
  }
  if (mode == kCmykMode) {
    // The host stores ink as 255 minus its amount.
    return {rgb[0], rgb[1], rgb[2], 255};
  }
  return rgb;
}

}  // namespace

bool InvertImage(RasterImage& image) {
  std::uint8_t* const pixels = image.PeekPixels();
  if (pixels == nullptr) return false;
  for (std::size_t i = 0; i < image.store.bytes; ++i) {
    pixels[i] = static_cast<std::uint8_t>(~pixels[i]);
  }
  return true;
}

bool FillImage(RasterImage& image, FillColor color, ColorServices* services) {
  std::uint8_t* const pixels = image.Pixels();
  if (pixels == nullptr) return false;
  ColorChannels channels = {static_cast<std::int16_t>(color.red >> 8),
                            static_cast<std::int16_t>(color.green >> 8),
                            static_cast<std::int16_t>(color.blue >> 8), 0};
  if (!HasNoConversion(image.colorMode)) {
    const ColorChannels rgb = channels;
    if (!ConvertColor(services, channels, kRgbMode, image.colorMode)) {
      channels = PlainConversion(rgb, image.colorMode);
    }
  }
  for (int i = 0; i < image.planeCount; ++i) {
    const auto plane = static_cast<std::size_t>(i);
    std::memset(pixels + plane * image.PlaneBytes(), channels[std::min<std::size_t>(plane, 3)],
                image.PlaneBytes());
  }
  return true;
}

bool ClearFrame(RasterImage& image, int width) {
  std::uint8_t* const pixels = image.PeekPixels();
  if (pixels == nullptr) return false;
  const std::ptrdiff_t stride = image.RowBytes();
  const int rows = image.StorageHeight();
  const auto side = static_cast<std::size_t>(std::clamp(width, 0, image.StorageWidth()));
  for (int y = 0; y < rows; ++y) {
    std::uint8_t* const row = pixels + y * stride;
    if (y < width || y >= rows - width) {
      std::memset(row, 0, static_cast<std::size_t>(stride));
    } else {
      std::memset(row, 0, side);
      std::memset(row + stride - static_cast<std::ptrdiff_t>(side), 0, side);
    }
  }
  return true;
}

}  // namespace tarnwick
