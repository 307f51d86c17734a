#pragma once
#include "engine/effect_layer.h"
#include "engine/render_state.h"

namespace tarnwick {

// The steps that both kinds of wash render share.

// Working texture, coverage and edge map, as far as they are stale, each with
// its share of the progress. Leaves the base behind them and the budget at one
// share, for the composite.
void RefreshWash(EffectLayer& layer, RenderState& state);

// The images that a composite reads; null members mean that it cannot run.
struct WashInputs {
  const RasterImage* texture = nullptr;
  const RasterImage* coverage = nullptr;
  const std::uint8_t* edge = nullptr;  // renderWidth samples a row
  int width = 0;                       // what both texture and coverage cover
  int height = 0;
  [[nodiscard]] bool Complete() const {
    return texture != nullptr && coverage != nullptr && edge != nullptr && width > 0 && height > 0;
  }
  [[nodiscard]] const std::uint8_t* TextureRow(int y) const {
    return texture->PeekInterior() + y * texture->RowBytes();
  }
  [[nodiscard]] const std::uint8_t* CoverageRow(int y) const {
    return coverage->PeekInterior() + y * coverage->RowBytes();
  }
};
[[nodiscard]] WashInputs InputsOf(const EffectLayer& layer, const RenderState& state);

}  // namespace tarnwick
