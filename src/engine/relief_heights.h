#pragma once
#include <array>
#include <cstdint>

#include "engine/effect_layer.h"
#include "engine/render_state.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// The height field of the active surfaces, 0..255, made row by row: the one
// texture times its depth, or both weighted by theirs. 0 where no texture
// covers the render. Goes by picture coordinates, whatever the textures' sizes.
// Reads the layers' working textures, which must outlive it.
class ReliefHeights {
 public:
  ReliefHeights(const EffectLayers& layers, const RenderState& state,
                const EffectSettings& settings, bool firstActive, bool secondActive);

  // The first `width` heights of row y.
  void Row(int y, int width, std::uint8_t* out) const;

 private:
  struct Area {
    const RasterImage* image = nullptr;
    int width = 0;
    int height = 0;
  };
  static Area AreaOf(const EffectLayer& layer, const RenderState& state);

  Area single_;   // through the table
  Area blended_;  // mixed in where both lie
  std::array<std::uint8_t, 256> table_{};
  float depth1_ = 0;
  float depth2_ = 0;
};

}  // namespace tarnwick
