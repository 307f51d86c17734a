#pragma once
#include "engine/effect_layer.h"
#include "settings/effect_settings.h"
#include "textures/thumbnail_picture.h"

namespace tarnwick {

// What a background makes of its texture.
struct ToneCellLook {
  LayerColor highlight{};
  LayerColor midtone{};
  LayerColor shadow{};
  bool invert = false;
  float hueShift = 0;
  float saturation = 1;
};

// With the layer's tones and inversion, and the settings' hue and saturation.
[[nodiscard]] ToneCellLook ToneLookOf(const EffectLayer& background,
                                      const EffectSettings& settings);

// Colours a grey picture in place.
void ColorToneCell(const ToneCellLook& look, ThumbnailPicture& picture);

}  // namespace tarnwick
