#pragma once
#include "engine/effect_layer.h"

namespace tarnwick {

// Rebuilds the layer's tone table for a strength of `value` percent and stores
// the parameter: below 100 everything is lifted toward 255 (no effect); from 100
// on the dark half is pressed down and the light half up. 100 is identity.
// Integers, truncating; entries keep their low 8 bits.
void BuildIntensityTable(EffectLayer& layer, int value);

}  // namespace tarnwick
