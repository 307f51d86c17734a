#pragma once
#include "engine/effect_layer.h"
#include "engine/render_state.h"

namespace tarnwick {

// Changes to a configured layer, one control each. Each marks what becomes stale
// and nothing more.

// Reloads the texture, but only if the slider's value changes and the effective
// scale with it.
void SetScale(EffectLayer& layer, RenderState& state, double value);

// Percent, 1..200; rebuilds the tone table.
void SetIntensity(EffectLayer& layer, int value);

// Marks nothing: a wash looks at it for each pixel.
void SetInside(EffectLayer& layer, int value);

struct LayerTones {
  float highlightLevel, midtoneLevel, shadowLevel;
  LayerColor highlightColor, midtoneColor, shadowColor;
};
void SetTones(EffectLayer& layer, const LayerTones& tones);

// The default tone colours of a background, into the layer alone.
void ResetBackgroundLayerColors(EffectLayer& background);

// A quarter turn of the texture as it is, and the angle with it, modulo 360.
void RotateLayerClockwise(EffectLayer& layer, RenderState& state);
void RotateLayerCounterClockwise(EffectLayer& layer, RenderState& state);

// Top and bottom change places.
void ToggleFlipHorizontal(EffectLayer& layer, RenderState& state);
// Left and right change places.
void ToggleFlipVertical(EffectLayer& layer, RenderState& state);
void ToggleInvert(EffectLayer& layer, RenderState& state);

// For a window that moved or changed its size.
void MarkCoverageDirty(EffectLayers& layers);
void MarkTexturesDirty(EffectLayers& layers);

}  // namespace tarnwick
