#pragma once
#include <array>
#include <cstdint>

namespace tarnwick {

// What a wash does to the picture where its texture is dark. Any other value
// acts as a stain.
enum WashType : std::uint8_t {
  kWashErosion = 0,  // alpha only
  kWashStain = 1,    // multiplied by the stain colour
  kWashBleach = 2,   // screened with it
  kWashColor = 3,    // BoostMix with it
};

// The labels, in the order of the values.
inline constexpr std::array<const char*, 4> kWashTypeLabels = {"Erosion", "Stain", "Bleach",
                                                               "Color"};

}  // namespace tarnwick
