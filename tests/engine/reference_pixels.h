#pragma once
#include "settings/effect_settings.h"

namespace tarnwick::testing {

// Steps of the washes and of the background by their definitions. Pixels are 4
// bytes; a strength of 255 changes nothing, 0 is the full effect.

// Lets the pure surface `save` through; the strength that the wash then has.
float SaveThroughByDefinition(std::uint8_t* pixel, const std::uint8_t* save, float strength);

void WashByDefinition(std::uint8_t* pixel, int type, std::uint32_t stain, float strength);

// The ground for a grey of 0..1 out of a texture with the tones low..high, a
// tenth inside its ends.
void ToneByDefinition(const EffectSettings& settings, float grey, float low, float high,
                      std::uint8_t* pixel);

}  // namespace tarnwick::testing
