#pragma once
#include "engine/effect_layer.h"
#include "engine/render_state.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// Tones the background's texture into backgroundPixels: every grey becomes a
// mix of the layer's three colours, with hue, saturation and the enhanced range
// of the settings. Only if toneDirty is set and there is a working texture;
// clears the flag. Covers the smaller of texture and render.
void RenderBackgroundTone(EffectLayer& layer, RenderState& state, const EffectSettings& settings);

// Lays outputPixels over backgroundPixels, over the whole render, inside the
// selection only. With "Fill Canvas" the result is opaque; without it no pixel
// gets less alpha than the source has.
void ComposeBackground(RenderState& state, const EffectSettings& settings, ViewMode view);

}  // namespace tarnwick
