#pragma once
#include <cstdint>

#include "toolbox/field.h"

namespace tarnwick::content {

// A board sawn from a trunk that lies along the picture: arched rings, knots
// about which they flow, fibres, pores and splits.
struct Wood {
  float ring = 17.0F;         // pixels from ring to ring where they lie flat
  float pith = 830.0F;        // pixels from the picture's top to the trunk's middle
  float depth = 60.0F;        // of the trunk's middle below the board's face, at its left end
  float slope = 0.13F;        // and by how much it sinks for each pixel on: makes the arches
  float knotPeriod = 620.0F;  // a knot at most to each square of this size
  float knotPresence = 0.4F;
  float minKnot = 16.0F, maxKnot = 64.0F;  // radius
  std::uint32_t seed = 1;

  struct Place {
    float ring;   // 0 early wood to 1 late wood, rises slowly and falls at once
    float fibre;  // about -1..1, long streaks along the grain
    float knot;   // 0 outside, 1 in the middle of a knot
    float split;  // 0..1, drying cracks along the grain
  };
  [[nodiscard]] Place At(float x, float y) const;
};

}  // namespace tarnwick::content
