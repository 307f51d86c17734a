#pragma once
#include <cstdint>

#include "toolbox/field.h"

namespace tarnwick::content {

// Stripes, blotches or ripples that grew by themselves, as coats and sand have
// them: like draws like together over a short way and holds it off over a
// longer one, so that bands keep their distance, fork and end.
struct PatternStyle {
  float spacing = 80.0F;  // pixels from band to band
  bool aligned = false;   // bands run along y, with forks; otherwise anywhere
  float bias = 0.0F;      // 0 bands as broad as their gaps; 0.3 and more: spots
  int rounds = 14;        // how long it grew; few leave it unruly
  std::uint32_t seed = 1;
};

class GrownPattern {
 public:
  GrownPattern(const Sheet& sheet, const PatternStyle& style);
  // About -1 (gap) to 1 (band), smooth; places up to a fifth of the sheet
  // outside it are covered, beyond that the border repeats.
  [[nodiscard]] float At(float x, float y) const;

 private:
  float cell_;               // pixels to a cell of the grid
  float marginX_, marginY_;  // cells outside the sheet
  Field grid_;
};

}  // namespace tarnwick::content
