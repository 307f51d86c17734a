#pragma once
#include <cstdint>

#include "toolbox/field.h"

namespace tarnwick::content {

// How the threads that lie along the picture (weft) cross those that stand
// upright (warp).
enum class Binding {
  kPlain,   // over one, under one
  kTwill,   // warp over three, under one, a step aside in each row: denim
  kBasket,  // two and two: hopsack
  kSatin,   // warp over seven, under one, scattered: a smooth face
};

// Cloth as a height: round threads of unequal breadth that swell, wander and
// dip below one another.
struct Weave {
  float warpPitch = 12.0F, weftPitch = 12.0F;  // pixels from thread to thread
  float warpFill = 0.95F, weftFill = 0.95F;    // breadth to pitch; below 1 cloth has holes
  float uneven = 0.2F;                         // how far threads differ in breadth, 0..1
  float slub = 0.15F;                          // and swell along themselves
  float slubLength = 90.0F;                    // pixels from swelling to swelling
  float wander = 0.12F;                        // pitches by which a thread leaves its line
  float crimp = 0.6F;                          // how deep they dip, in half breadths
  Binding binding = Binding::kPlain;
  std::uint32_t seed = 1;

  struct Place {
    float height = -1.0F;      // 1 on top of a crossing, about -0.5 below one, -1 in a hole
    float across = 0.0F;       // -1..1 from rim to rim of the thread
    float along = 0.0F;        // pixels, along the thread
    float level = 0.0F;        // -1 where the thread dives, 1 where it lies on top
    std::uint32_t thread = 0;  // which, a random word
    bool warp = false;
    bool hole = true;  // no thread here
  };
  [[nodiscard]] Place At(float x, float y) const;
  [[nodiscard]] Place At(const Spot& spot) const { return At(spot.fx, spot.fy); }
};

}  // namespace tarnwick::content
