#pragma once
#include "engine/effect_layer.h"
#include "engine/render_state.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// Runs the stages in their fixed order on state.sourcePixels: surfaces, first
// wash, second wash, background; into state.outputPixels. One path for preview
// and final; what is not stale is not computed again.
//
// `view` picks what takes part (kOriginal is no render: callers show the source
// themselves). Progress runs from 10 to 100. A stage that lacks an input leaves
// the output alone, and the rest goes on.
void RenderPipeline(EffectLayers& layers, RenderState& state, const EffectSettings& settings,
                    ViewMode view);

}  // namespace tarnwick
