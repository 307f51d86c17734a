#pragma once
#include <cstdint>
#include <vector>

#include "toolbox/field.h"

namespace tarnwick::content {

// A sheet that was folded flat and opened again.
struct Fold {
  float x, y;      // a point on the crease
  float heading;   // radians, along the crease
  float strength;  // 0..1: how often it was opened and shut
  bool valley;     // it bends away from the viewer
};

// What all creases together do to a place.
struct FoldSpot {
  float shade = 0.0F;     // light on the bent paper: about -1..1
  float wear = 0.0F;      // broken fibres on the crease: 0..1
  float toCrease = 1e9F;  // pixels to the nearest
};

class Folds {
 public:
  Folds(std::vector<Fold> folds, std::uint32_t seed);
  [[nodiscard]] FoldSpot At(float x, float y) const;

 private:
  std::vector<Fold> folds_;
  std::vector<float> cosine_, sine_;
  std::uint32_t seed_;
};

}  // namespace tarnwick::content
