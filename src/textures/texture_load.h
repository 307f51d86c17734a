#pragma once
#include <string>

#include "engine/effect_layer.h"
#include "engine/render_state.h"

namespace tarnwick {

// The factor that makes a texture of `textureWidth` x `textureHeight` cover the
// document: it just covers at a `slider` of 0 and is 1.8 times that at 200.
[[nodiscard]] double EffectiveScale(int documentWidth, int documentHeight, int textureWidth,
                                    int textureHeight, double slider);

// Reads the texture file at `path` into `layer.texture`: scaled to cover the
// document, inverted, flipped and turned as the layer says, with the offsets
// limited to it; then prepares `working`.
//
// A file that is missing, damaged or too large is replaced by plain white, and
// `state.alerts` is told if state.showTextureAlerts is on. With a
// `state.textureCache` a texture is read and scaled once for all renders.
// False only when not even the white image could be made; `texture` is then null.
[[nodiscard]] bool LoadTexture(EffectLayer& layer, RenderState& state, const std::string& path);

// Applies the layer's switches and angle to `texture` in place.
void OrientTexture(EffectLayer& layer, ThreadPool* pool);

// Reverses the rows (1) or mirrors them (2). Nothing without a texture.
void FlipLayerTexture(EffectLayer& layer, int mode, ThreadPool* pool);

}  // namespace tarnwick
