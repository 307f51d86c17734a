#pragma once
#include "toolbox/field.h"

namespace tarnwick::content {

// Blurs in place, near enough to a bell of the given radius in pixels (its
// standard deviation): three box means each way. Edges repeat outwards.
void Blur(const Sheet& sheet, Field& field, float radius);

// Takes the stair steps off hard rims, in place: each sample gives `share`
// (0..1) of itself to its neighbours, evenly weighted by nearness. Textures are
// mostly seen enlarged, where a step of one pixel shows as a block.
void Soften(const Sheet& sheet, Field& field, float share);

// The distance in pixels from each place to the nearest place where `mask` is
// above one half; 0 there, and 1e9 everywhere if there is none. Exact.
[[nodiscard]] Field DistanceTo(const Sheet& sheet, const Field& mask);

// Rise to the right and downwards at a place, by central differences; values
// for each pixel.
struct Slope {
  float x, y;
};
[[nodiscard]] Slope SlopeAt(const Field& height, int x, int y);

// How a height field catches a light that comes from the top left: 0 on the
// level, above 0 on slopes that face the light, limited softly to -1..1.
// `strength` is the slope, in height for each pixel, that gives half of that.
[[nodiscard]] Field Relief(const Sheet& sheet, const Field& height, float strength);

// Lets every value run down the picture: each place takes the larger of its
// own and what arrives from above, which fades by the factor fade(spot) for
// each row, 0..1. It wanders aside by `wander`(spot), -1..1 columns a row.
template <class Fade, class Wander>
[[nodiscard]] Field RunDown(const Field& source, const Fade& fade, const Wander& wander) {
  Field runs = source;
  // Rows hang on the row above; only the columns of a row are free of order.
  for (int y = 1; y < runs.Height(); ++y) {
    const float fy = static_cast<float>(y);
    for (int x = 0; x < runs.Width(); ++x) {
      const Spot spot{x, y, static_cast<float>(x), fy};
      const float above = runs.Sample(spot.fx + wander(spot), fy - 1.0F) * fade(spot);
      float* here = runs.Row(y) + x;
      if (above > *here) *here = above;
    }
  }
  return runs;
}

}  // namespace tarnwick::content
