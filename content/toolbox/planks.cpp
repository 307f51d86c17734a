#include "toolbox/planks.h"

#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"

namespace tarnwick::content {
namespace {

// The upper edge of row i, hardly ever quite straight.
float RowEdge(const Planks& planks, int i, float x) {
  const float shift = planks.uneven * (Unit(HashAt(i, 0, planks.seed)) - 0.5F);
  return (static_cast<float>(i) + shift) * planks.breadth +
         1.6F * LineNoise(x / 260.0F, planks.seed + 11 + static_cast<std::uint32_t>(i));
}

float PlankEnd(const Planks& planks, int row, int i) {
  // Ends lie on studs, or nothing would hold them.
  const float stagger = Unit(HashAt(row, 3, planks.seed)) * planks.length;
  const float end = static_cast<float>(i) * planks.length + stagger +
                    0.5F * planks.length * (Unit(HashAt(i, row, planks.seed + 1)) - 0.5F);
  return (static_cast<float>(FloorInt(end / planks.studs)) + 0.5F) * planks.studs;
}

}  // namespace

Planks::Place Planks::At(float x, float y) const {
  int row = FloorInt(y / breadth);
  if (y < RowEdge(*this, row, x)) --row;
  if (y >= RowEdge(*this, row + 1, x)) ++row;
  const float top = RowEdge(*this, row, x);
  const float foot = RowEdge(*this, row + 1, x);
  int i = FloorInt(x / length) - 3;
  while (x >= PlankEnd(*this, row, i + 1)) ++i;
  const float left = PlankEnd(*this, row, i);
  const float right = PlankEnd(*this, row, i + 1);
  return {HashAt(i, row, seed + 2), x - left,  y - top, Min(y - top, foot - y),
          Min(x - left, right - x), foot - top};
}

Planks::Nail Planks::NailAt(float x, float y) const {
  const Place place = At(x, y);
  Nail nearest;
  const int stud = FloorInt(x / studs);
  // A plank's end shares its stud with the next plank: one nail on each side.
  const float middle = (static_cast<float>(stud) + 0.5F) * studs;
  const float left = x - place.u;
  for (int k = 0; k < 2; ++k) {
    const std::uint32_t h = HashAt(stud, k, place.plank);
    float cx = middle + 14.0F * (Unit(h) - 0.5F);
    if (Abs(middle - left) < 1.0F) cx = left + 26.0F + 6.0F * Unit(h);
    if (x < middle && place.toEnd < studs && Abs(x + place.toEnd - middle) < 1.0F) {
      cx = middle - 26.0F - 6.0F * Unit(h);
    }
    const float cv = place.breadth * (k == 0 ? 0.2F : 0.8F) + 10.0F * (Unit(Hash(h)) - 0.5F);
    const float aside = x - cx;
    const float below = place.v - cv;
    const float distance = Length(aside, below);
    // Above a nail the one before it may still run down to here.
    if (distance < 16.0F || below > 0.0F) {
      nearest = {distance, aside, below, Unit(Hash(h + 9))};
    }
  }
  return nearest;
}

}  // namespace tarnwick::content
