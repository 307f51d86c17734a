#pragma once
#include <cstdint>

namespace tarnwick::content {

// A wall or floor of planks that lie along the picture, of unequal breadth and
// length, nailed to studs that stand behind them.
struct Planks {
  float breadth = 206.0F;  // mean, pixels
  float uneven = 0.42F;    // how far breadths differ, 0..1
  float length = 1900.0F;  // mean; ends are staggered from row to row
  float studs = 610.0F;    // from stud to stud
  std::uint32_t seed = 1;

  struct Place {
    std::uint32_t plank;  // which, a random word
    float u, v;           // pixels from its left end and upper edge
    float toGap;          // to the nearer long edge
    float toEnd;          // to the nearer end
    float breadth;        // of this plank
  };
  [[nodiscard]] Place At(float x, float y) const;

  struct Nail {
    float distance = 1e9F;  // pixels from the nail's middle
    float aside = 0.0F;     // to its right
    float below = 0.0F;     // under it
    float age = 0.0F;       // 0..1, one for each nail
  };
  // The nearest nail above the place or beside it, within the plank.
  [[nodiscard]] Nail NailAt(float x, float y) const;
};

}  // namespace tarnwick::content
