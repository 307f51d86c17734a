#pragma once
#include "engine/effect_layer.h"
#include "engine/relief_heights.h"
#include "engine/render_state.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// Lights the relief, blends its tones with sourcePixels into SurfaceResult() and
// brings the washes' edgeSamples along, so that a wash follows a displacement.
//
// Needs   surfaceStale (else it returns at once), a working texture of the first
//         surface, and the alpha of outputPixels.
// Covers  the smaller of the first surface's texture (the second's, where a
//         preview shows it alone) and the render.
void ComposeSurface(EffectLayers& layers, RenderState& state, const EffectSettings& settings,
                    const ReliefHeights& heights);

}  // namespace tarnwick
