#pragma once
#include "settings/effect_settings.h"
#include "support/test_random.h"

namespace tarnwick::testing {

// Settings with every effect at work, drawn so that each branch of each stage
// comes up: the ends of the ranges as often as what lies between.
[[nodiscard]] EffectSettings RandomSettings(TestRandom& random);

}  // namespace tarnwick::testing
