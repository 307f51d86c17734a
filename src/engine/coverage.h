#pragma once
#include "engine/effect_layer.h"
#include "engine/render_state.h"

namespace tarnwick {

// The coverage map cuts a wash into patches: fractal noise, a threshold, and a
// soft rim of two pixels. All of these return at once on layers that are no wash.

// Stores the value and derives noisePeriod; sets coverageDirty.
void SetCoverageScale(EffectLayer& layer, int value);

// Sets coverageDirty unless the seed is the same and there is a noise map.
void SetSeed(EffectLayer& layer, int value);

// Thresholds the noise anew, if `value` differs from `coverage`: -100 (soft, dim)
// over 0 (everything) to 100 (next to nothing).
void SetCoverage(EffectLayer& layer, RenderState& state, int value);

// Rebuilds noise and coverage if coverageDirty is set. Odd, and kept: with a
// coverage of exactly 100 and an old noise map the result is a full map, whereas
// SetCoverage(100) leaves next to nothing. Without memory coverageMap is null.
void BuildCoverage(EffectLayer& layer, RenderState& state);

// The noise is the slowest step of a wash and a full coverage never looks at it:
// noiseMap stays without pixels until a threshold reads it. This fills it now.
// False without memory.
[[nodiscard]] bool EnsureNoise(EffectLayer& layer, RenderState& state);

}  // namespace tarnwick
