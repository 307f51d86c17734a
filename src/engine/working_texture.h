#pragma once
#include "engine/effect_layer.h"
#include "engine/render_state.h"

namespace tarnwick {

// Rebuilds `working` from `texture` if textureDirty is set and there is a
// texture; clears that flag and sets toneDirty and surfaceStale.
//
// Preview  `working` is the part of the texture that the window shows, reduced
//          by 1 / viewScale. A part that reaches beyond the texture ends there;
//          with nothing left `working` is null.
// Final    `working` is `texture` itself, cut at the layer's offset.
// Surfaces are smoothed (imaging/smooth_relief.h), in a final render in place.
void PrepareWorkingTexture(EffectLayer& layer, RenderState& state);

}  // namespace tarnwick
