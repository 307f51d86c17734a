#pragma once
#include "engine/effect_layer.h"
#include "engine/render_state.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// Works out the tone of each grey of the background's texture: a mix of the
// layer's three colours, with hue, saturation and the enhanced range of the
// settings. Only if toneDirty is set and there is a working texture; clears the
// flag. The tones cover the smaller of texture and render.
void RenderBackgroundTone(EffectLayer& layer, RenderState& state, const EffectSettings& settings);

// Lays outputPixels over the toned background, over the whole render, inside the
// selection only; beyond the background's texture the ground is black. With "Fill Canvas" the
// result is opaque; without it no pixel gets less alpha than the source has.
void ComposeBackground(const EffectLayer& layer, RenderState& state, const EffectSettings& settings,
                       ViewMode view);

}  // namespace tarnwick
