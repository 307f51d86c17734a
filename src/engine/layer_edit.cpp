#include "engine/layer_edit.h"

#include "engine/intensity_table.h"
#include "engine/working_texture.h"
#include "imaging/fill.h"
#include "imaging/orientation.h"
#include "settings/effect_settings.h"
#include "textures/texture_load.h"

namespace tarnwick {
namespace {

// In a final render `working` shares the texture; a change in place would reach
// both, so both are prepared again.
void Prepare(EffectLayer& layer, RenderState& state) {
  layer.textureDirty = true;
  PrepareWorkingTexture(layer, state);
}

}  // namespace

void SetScale(EffectLayer& layer, RenderState& state, double value) {
  if (value == layer.scaleSetting) return;
  layer.scaleSetting = value;
  const double before = layer.effectiveScale;
  layer.effectiveScale = EffectiveScale(state.documentWidth, state.documentHeight,
                                        layer.textureWidth, layer.textureHeight, value);
  if (layer.effectiveScale == before) return;
  layer.textureDirty = true;
  const std::string path = layer.fileName;
  (void)LoadTexture(layer, state, path);
}

void SetIntensity(EffectLayer& layer, int value) {
  layer.intensity = value;
  BuildIntensityTable(layer, value);
  layer.textureDirty = true;
}

void SetInside(EffectLayer& layer, int value) {
  layer.inside = value;
}

void SetTones(EffectLayer& layer, const LayerTones& tones) {
  layer.highlightLevel = tones.highlightLevel;
  layer.midtoneLevel = tones.midtoneLevel;
  layer.shadowLevel = tones.shadowLevel;
  layer.highlightColor = tones.highlightColor;
  layer.midtoneColor = tones.midtoneColor;
  layer.shadowColor = tones.shadowColor;
  layer.toneDirty = true;
}

void ResetBackgroundLayerColors(EffectLayer& background) {
  EffectSettings defaults;
  SettingsSession session;
  ResetBackground(defaults, session);
  background.highlightColor = ColorOfWord(defaults.BackgroundHighlightColor);
  background.midtoneColor = ColorOfWord(defaults.BackgroundMidtoneColor);
  background.shadowColor = ColorOfWord(defaults.BackgroundShadowColor);
  background.toneDirty = true;
}

void RotateLayerClockwise(EffectLayer& layer, RenderState& state) {
  layer.angle = static_cast<std::int32_t>((std::int64_t{layer.angle} + 90) % 360);
  ImagePtr turned;
  if (RotateClockwise(turned, layer.texture.get(), state.pool)) layer.texture = turned;
  Prepare(layer, state);
}

void RotateLayerCounterClockwise(EffectLayer& layer, RenderState& state) {
  std::int64_t angle = std::int64_t{layer.angle} - 90;
  if (angle < 0) angle += 360;
  layer.angle = static_cast<std::int32_t>(angle % 360);
  ImagePtr turned;
  if (RotateCounterClockwise(turned, layer.texture.get(), state.pool)) layer.texture = turned;
  Prepare(layer, state);
}

void ToggleFlipHorizontal(EffectLayer& layer, RenderState& state) {
  layer.flipHorizontal = layer.flipHorizontal == 0 ? 1 : 0;
  FlipLayerTexture(layer, 1, state.pool);
  Prepare(layer, state);
}

void ToggleFlipVertical(EffectLayer& layer, RenderState& state) {
  layer.flipVertical = layer.flipVertical == 0 ? 1 : 0;
  FlipLayerTexture(layer, 2, state.pool);
  Prepare(layer, state);
}

void ToggleInvert(EffectLayer& layer, RenderState& state) {
  layer.invert = layer.invert == 0 ? 1 : 0;
  if (layer.texture != nullptr) (void)InvertImage(*layer.texture);
  Prepare(layer, state);
}

void MarkCoverageDirty(EffectLayers& layers) {
  for (EffectLayer& wash : layers.washes) wash.coverageDirty = true;
}

void MarkTexturesDirty(EffectLayers& layers) {
  for (EffectLayer& wash : layers.washes) wash.textureDirty = true;
  for (EffectLayer& surface : layers.surfaces) surface.textureDirty = true;
  layers.background.textureDirty = true;
}

}  // namespace tarnwick
