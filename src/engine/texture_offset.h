#pragma once
#include "engine/effect_layer.h"
#include "engine/render_state.h"

namespace tarnwick {

// Moves the picture's corner on the layer's texture, by document pixels, and
// keeps the picture on the texture as far as it fits. Where the texture is the
// smaller one the upper limit wins, and an offset may become negative. Sets
// textureDirty. Does nothing but add without a texture.
void MoveOffset(EffectLayer& layer, const RenderState& state, int dx, int dy);

struct OffsetRange {
  bool canMove;  // only the low bytes of the ranges count: 256 reads as fixed
  std::int32_t x, y;
  std::int32_t rangeX, rangeY;  // the largest offsets
};

[[nodiscard]] OffsetRange GetOffset(const EffectLayer& layer, const RenderState& state);

}  // namespace tarnwick
