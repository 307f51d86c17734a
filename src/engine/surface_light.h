#pragma once
#include <cstdint>

#include "engine/render_state.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// The directional light over the relief, in 32-bit floats.
struct SurfaceLight {
  float x = 0;
  float y = 0;
  float z = 0;
  float slope = 0;  // what a height difference of 1 counts
};

// Which depth counts: the first surface's, or the larger of the two.
[[nodiscard]] float GoverningDepth(const EffectSettings& settings);

[[nodiscard]] SurfaceLight LightOf(const EffectSettings& settings, float viewScale);

// The brightness of a row of `width` heights: 0..1 for most, not limited here. A
// flat area gets light.z. Heights enter as first differences to the right, at
// the last column to the left, and to the row `next`, which lies below, or above
// if `nextIsAbove` (for the last row). A single column has no difference, and a
// single row passes itself.
void LightRow(const SurfaceLight& light, const std::uint8_t* row, const std::uint8_t* next,
              bool nextIsAbove, int width, float* out);

}  // namespace tarnwick
