#pragma once
#include <cstdint>

#include "imaging/color_services.h"
#include "imaging/raster_image.h"

namespace tarnwick {

// Red, green, blue; only the upper byte of each is used.
struct FillColor {
  std::uint16_t red;
  std::uint16_t green;
  std::uint16_t blue;
};

inline constexpr FillColor kWhiteFill{0xFFFF, 0xFFFF, 0xFFFF};
inline constexpr FillColor kBlackFill{0, 0, 0};

// Every sample of all planes becomes its complement. False without pixels.
[[nodiscard]] bool InvertImage(RasterImage& image);

// Fills the whole storage of each plane, margin included, with `color` in the
// image's mode. The conversion goes through `services`; without them, or when
// they fail, through a plain one of our own that keeps black and white. False
// without pixels.
[[nodiscard]] bool FillImage(RasterImage& image, FillColor color,
                             ColorServices* services = nullptr);

// Zeroes `width` samples on all four sides of the storage of plane 0. False
// without pixels.
bool ClearFrame(RasterImage& image, int width);

}  // namespace tarnwick
