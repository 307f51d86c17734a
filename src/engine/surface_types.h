#pragma once
#include <array>
#include <cstdint>

namespace tarnwick {

// How a surface blends the picture S with its shade C. The last three are not
// offered; presets and scripts can ask for them. Any other value acts as
// kSurfaceShade.
enum SurfaceType : std::uint8_t {
  kSurfaceColorize = 0,
  kSurfaceTint = 1,
  kSurfaceBoost = 2,
  kSurfaceEnhance = 3,  // overlay
  kSurfaceVivid = 4,    // vivid light
  kSurfaceShade = 5,    // the shade alone
  kSurfaceMultiply = 6,
  kSurfaceBurn = 7,  // colour burn
};

// The labels of those that are offered, in the order of the values.
inline constexpr std::array<const char*, 5> kSurfaceTypeLabels = {"Colorize", "Tint", "Boost",
                                                                  "Enhance", "Vivid"};

}  // namespace tarnwick
