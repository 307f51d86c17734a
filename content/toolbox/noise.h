#pragma once
#include <cstdint>

#include "toolbox/field.h"

namespace tarnwick::content {

// Smooth random hills about 0, mostly within -1..1; one hill or hollow takes
// about one unit. Value 0 and a slope of its own at every whole coordinate.
[[nodiscard]] float GradientNoise(float x, float y, std::uint32_t seed);

// The same on a line, for pressure along a stroke: -1..1.
[[nodiscard]] float LineNoise(float x, std::uint32_t seed);

// Noise of several sizes on top of one another.
struct Fbm {
  float period = 64.0F;  // pixels from hill to hill of the coarsest layer
  int octaves = 5;       // each at half the period of the one before
  float gain = 0.5F;     // and this much of its height: 0.5 clouds, 0.7 grit
  std::uint32_t seed = 1;

  // About -1..1, and within -0.5..0.5 for most places. Each layer is turned
  // against the last, so that the lattices hide each other.
  [[nodiscard]] float operator()(float x, float y) const;
  [[nodiscard]] float operator()(const Spot& spot) const { return (*this)(spot.fx, spot.fy); }
  // Sharp crests instead of hills: 0 (valley) to 1 (crest).
  [[nodiscard]] float Ridged(float x, float y) const;
};

// A place moved about by noise, up to about `reach` pixels either way: what is
// painted at the moved place looks torn, run or grown instead of drawn.
struct Warp {
  float reach = 20.0F;
  Fbm noise;

  [[nodiscard]] Spot operator()(const Spot& spot) const;
};

}  // namespace tarnwick::content
