#pragma once
#include <cstdint>

#include "engine/effect_layer.h"

namespace tarnwick {

// A wash in small. It works in floats throughout, where the render truncates in
// between: a cell may differ from the pane by a step.
struct WashCellLook {
  std::uint8_t type = 0;  // see wash_types.h
  LayerColor stain{};
};

// Writes the three bytes of a pixel. `grey` is that of the texture: 255 leaves the
// picture, 0 is the full effect. `pixel` is the picture's red, green, blue and alpha;
// `under`, three bytes, shows where it is transparent, and may be null.
void WashCellPixel(const WashCellLook& look, std::uint8_t grey, const std::uint8_t* pixel,
                   const std::uint8_t* under, std::uint8_t* out);

}  // namespace tarnwick
