#pragma once
#include "engine/effect_layer.h"
#include "engine/render_state.h"

namespace tarnwick {

// True for a layer that has a texture other than "No_Texture.twk".
[[nodiscard]] bool HasTexture(const EffectLayer& layer, const RenderState& state);

// Brings the stale parts of a wash up to date (working texture, coverage, edge
// map) and lays it over outputPixels. Covers the smaller of working texture and
// render; what lies beyond stays. Does nothing without a texture, and leaves the
// picture alone where a mask has no memory.
void RenderWash(EffectLayer& layer, RenderState& state);

// The host's output buffer, with the layer mask as its last plane.
struct MaskTarget {
  std::uint8_t* pixels = nullptr;
  std::ptrdiff_t rowBytes = 0;
  int width = 0;
  int height = 0;
  int planes = 0;
};

// The same, but into the layer mask: only with at least 5 planes, 6 in CMYK.
void RenderWashToMask(EffectLayer& layer, RenderState& state, const MaskTarget& target);

}  // namespace tarnwick
