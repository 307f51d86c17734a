#pragma once
#include <array>

#include "settings/effect_settings.h"

namespace tarnwick::testing {

// A pixel of the surface by its definition, one step after the other.
struct ModelShade {
  std::array<float, 3> blended;  // F
  std::array<int, 3> pure;       // P
};
[[nodiscard]] ModelShade ShadeByDefinition(const EffectSettings& settings, int type,
                                           const std::array<int, 3>& source, float light);

}  // namespace tarnwick::testing
