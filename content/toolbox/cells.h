#pragma once
#include <cstdint>

#include "toolbox/field.h"

namespace tarnwick::content {

// What surrounds a place when points are scattered, one to each square of a
// lattice. Lengths are in units of that square.
struct CellSample {
  float f1 = 0.0F;             // to the nearest point
  float f2 = 0.0F;             // to the second nearest
  float edge = 0.0F;           // to the border between the two nearest cells; CellsWithEdge only
  float id = 0.0F;             // 0..1, one for each point
  std::uint32_t hash = 0;      // the same with all its bits
  float dx = 0.0F, dy = 0.0F;  // from the place to the nearest point
};

// Scattered points. `jitter` 0 leaves them in the middle of their squares, 1
// lets them lie anywhere within.
struct Cells {
  float period = 64.0F;  // side of a square in pixels
  float jitter = 1.0F;
  std::uint32_t seed = 1;

  // f1, f2 and the nearest point.
  [[nodiscard]] CellSample operator()(float x, float y) const;
  // Also the true distance to the border, for cracks and seams of even width.
  // About twice the work.
  [[nodiscard]] CellSample WithEdge(float x, float y) const;
};

// Round spots of many sizes, one to a square at most.
struct Spots {
  float period = 64.0F;     // side of a square in pixels; spots are smaller
  float presence = 0.5F;    // share of squares that hold a spot
  float minRadius = 4.0F;   // pixels, at most period / 2
  float maxRadius = 16.0F;  // small spots are the more frequent ones
  std::uint32_t seed = 1;

  struct Hit {
    float depth = 0.0F;   // 0 at a spot's rim and outside, 1 at its centre
    float radius = 0.0F;  // of the spot that is deepest here, pixels
    std::uint32_t hash = 0;
    float dx = 0.0F, dy = 0.0F;  // from the spot's centre to the place, in radii
  };
  [[nodiscard]] Hit operator()(float x, float y) const;
  [[nodiscard]] Hit operator()(const Spot& spot) const { return (*this)(spot.fx, spot.fy); }
};

}  // namespace tarnwick::content
