#pragma once
#include "engine/effect_layer.h"
#include "engine/render_state.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// The steps between source, surface and output.

// Stands in for an absent surface stage: the source becomes the output, and the
// washes' edgeSamples are taken as they lie.
void CopySourceToOutput(EffectLayers& layers, RenderState& state, const EffectSettings& settings);

// Output alpha becomes source alpha, times the selection if there is one. The
// colours stay.
void ResetOutputAlpha(RenderState& state);

// Puts the surfaced picture into the output, inside the selection.
void MergeSurfaceResult(RenderState& state);

}  // namespace tarnwick
