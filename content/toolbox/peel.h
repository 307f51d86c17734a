#pragma once
#include "toolbox/field.h"

namespace tarnwick::content {

// How a coat of paint, plaster or gilding comes off what lies below it.
struct PeelStyle {
  float at = 0.1F;         // loss above which it is gone
  float softness = 0.03F;  // of its rim, in units of loss
  float curl = 7.0F;       // pixels from the rim over which it stands up
  float thickness = 4.0F;  // how far its shadow falls, pixels
};

struct PeelingCoat {
  Field cover;   // 1 where it holds, 0 where it is gone
  Field lift;    // 0 flat, towards 1 where it stands up along its rim
  Field shadow;  // 0..1, on what is bare, from a light at the top left
};

// `loss` tells how far each place has suffered; the same field with a higher
// `at` gives the next coat below.
[[nodiscard]] PeelingCoat Peel(const Sheet& sheet, const Field& loss, const PeelStyle& style);

}  // namespace tarnwick::content
