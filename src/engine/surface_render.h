#pragma once
#include "engine/effect_layer.h"
#include "engine/render_state.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// Fills state.depthMap with the heights of the active surfaces, 0..255: the one
// texture times its depth, or both weighted by theirs. Covers the smaller of
// working texture and render; clears the map when none is active. Sets
// surfaceStale. Does nothing without the texture that it needs.
void BuildDepthMap(EffectLayers& layers, RenderState& state, const EffectSettings& settings,
                   bool firstActive, bool secondActive);

// Lights the relief, blends its tones with sourcePixels into SurfaceResult() and
// brings the washes' edgeSamples along, so that a wash follows a displacement.
//
// Needs   surfaceStale (else it returns at once), a working texture of the first
//         surface, the depth map, and the alpha of outputPixels.
// Covers  the smaller of the first surface's texture (the second's, where a
//         preview shows it alone) and the render.
void ComposeSurface(EffectLayers& layers, RenderState& state, const EffectSettings& settings);

}  // namespace tarnwick
