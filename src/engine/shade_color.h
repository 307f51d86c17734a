#pragma once
#include <array>
#include <cstdint>

#include "settings/effect_settings.h"

namespace tarnwick {

// What turns a brightness into a tone colour and blends it with a picture. Both
// surfaces share it. Floats are 32-bit, colours 0..255.
struct ShadeLook {
  std::uint8_t type = 0;  // see surface_types.h
  float amount = 0;       // of colourisation, 0..1
  std::array<float, 3> shadow{};
  std::array<float, 3> midtone{};
  std::array<float, 3> highlight{};
  float hueShift = 0;
  float brightness = 0;
  float contrast = 1;
  bool adjustsHue = false;  // hue or brightness
  bool adjustsContrast = false;
};

[[nodiscard]] ShadeLook ShadeLookOf(const EffectSettings& settings, std::uint8_t type);

struct ShadedColor {
  std::array<float, 3> blended;      // the picture with its relief; not limited
  std::array<std::int32_t, 3> pure;  // the tone colour alone, 0..255
};

// One colour (0..255) under a light of 0..1. The surface stage does the same by
// whole rows.
[[nodiscard]] ShadedColor ShadeColor(int r, int g, int b, float light, const ShadeLook& look);

}  // namespace tarnwick
