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

// The brightness of `width` pixels of row y: 0..1 for most, not limited here. A
// flat area gets light.z. Heights enter as first differences to the right and
// below; the last column and row look back instead, and a map of one column or
// row has no difference in that direction.
// `depth` is the map, `stride` bytes a row, `height` rows.
void LightRow(const SurfaceLight& light, const std::uint8_t* depth, std::ptrdiff_t stride,
              int width, int height, int y, float* out);

}  // namespace tarnwick
