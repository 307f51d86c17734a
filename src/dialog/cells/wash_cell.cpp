#include "dialog/cells/wash_cell.h"

#include <algorithm>
#include <array>

#include "dialog/cells/cell_blend.h"
#include "engine/wash_types.h"
#include "imaging/color_blend.h"

namespace tarnwick {
namespace {

using Color = std::array<float, 3>;

// The full effect on the picture's colours.
Color WashedColor(const WashCellLook& look, const Color& picture) {
  const Color stain = {static_cast<float>(look.stain[0]), static_cast<float>(look.stain[1]),
                       static_cast<float>(look.stain[2])};
  Color washed = picture;
  switch (look.type) {
    case kWashErosion:
      break;
    case kWashBleach:
      for (std::size_t c = 0; c < 3; ++c) {
        washed[c] = 255.0F - (255.0F - picture[c]) * (255.0F - stain[c]) / 256.0F;
      }
      break;
    case kWashColor:
      BoostMix(stain[0], stain[1], stain[2], washed[0], washed[1], washed[2]);
      break;
    default:
      for (std::size_t c = 0; c < 3; ++c) washed[c] = picture[c] * stain[c] / 255.0F;
      break;
  }
  return washed;
}

}  // namespace

void WashCellPixel(const WashCellLook& look, std::uint8_t grey, const std::uint8_t* pixel,
                   const std::uint8_t* under, std::uint8_t* out) {
  const float v = static_cast<float>(grey) / 255.0F;
  Color color = {static_cast<float>(pixel[0]), static_cast<float>(pixel[1]),
                 static_cast<float>(pixel[2])};
  int alpha = pixel[3];
  if (look.type == kWashErosion) {
    alpha = static_cast<int>(static_cast<float>(alpha) * v);
  } else {
    const Color washed = WashedColor(look, color);
    for (std::size_t c = 0; c < 3; ++c) {
      color[c] = std::min(washed[c] * (1.0F - v) + color[c] * v, 255.0F);
    }
  }
  PutOver(color, alpha, under, out);
}

}  // namespace tarnwick
