#include "toolbox/wood.h"

#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

struct Flow {
  float push = 0.0F;   // pixels by which the grain is pushed aside
  float shift = 0.0F;  // pixels by which fibres bend
  float knot = 0.0F;   // 1 in the middle of a knot, 0 at its rim
  float year = 0.0F;   // rings of the knot itself, from its middle
};

// Knots are bumps on the ring field: its contours close within a bump and
// stream around it outside, as grain does.
Flow FlowAt(const Wood& wood, float x, float y) {
  Flow flow;
  // Grain stretches a bump along the trunk.
  constexpr float kLong = 2.3F;
  const int ix = FloorInt(x / wood.knotPeriod);
  const int iy = FloorInt(y / wood.knotPeriod);
  for (int j = -1; j <= 1; ++j) {
    for (int i = -1; i <= 1; ++i) {
      const std::uint32_t h = HashAt(ix + i, iy + j, wood.seed);
      if (Unit(h) >= wood.knotPresence) continue;
      const float cx =
          (static_cast<float>(ix + i) + 0.2F + 0.6F * Unit(Hash(h + 1))) * wood.knotPeriod;
      const float cy =
          (static_cast<float>(iy + j) + 0.2F + 0.6F * Unit(Hash(h + 2))) * wood.knotPeriod;
      const float radius = Mix(wood.minKnot, wood.maxKnot, Square(Unit(Hash(h + 3))));
      const float dx = (x - cx) / radius;
      const float dy = (y - cy) / radius;
      const float near = dx * dx / (kLong * kLong) + dy * dy;
      const float bump = 1.0F / (1.0F + 0.45F * near);
      // Nothing reaches beyond the squares searched.
      const float fade = SmoothRamp(wood.knotPeriod * 0.75F, wood.knotPeriod * 0.4F,
                                    Max(Abs(x - cx), Abs(y - cy)));
      flow.push += bump * bump * radius * 1.5F * fade;
      flow.shift += (dy < 0.0F ? -1.0F : 1.0F) * bump * bump * radius * fade *
                    SmoothRamp(0.0F, 0.6F, Abs(dy));
      const Fbm lumpy{radius * 0.9F, 3, 0.5F, wood.seed + 17};
      const float far = Sqrt(dx * dx / (1.3F * 1.3F) + dy * dy) * (1.0F + 0.22F * lumpy(x, y));
      if (1.0F - far > flow.knot) {
        flow.knot = 1.0F - far;
        flow.year = far * radius / 5.5F;
      }
    }
  }
  return flow;
}

}  // namespace

Wood::Place Wood::At(float x, float y) const {
  const Flow flow = FlowAt(*this, x, y);
  const Fbm sway{520.0F, 3, 0.45F, seed + 10};
  const Fbm shiver{60.0F, 3, 0.5F, seed + 11};
  const float wy = y + 34.0F * sway(x * 0.4F, y) + 2.5F * shiver(x * 0.25F, y);
  const float h = wy - pith;
  const float below = depth + slope * x + 22.0F * sway(x * 0.3F + 700.0F, 40.0F);
  const float far = Sqrt(h * h + below * below) + flow.push;
  // Fat years and lean ones.
  const Fbm growth{5.0F, 3, 0.6F, seed + 12};
  const float rings = far / ring;
  const float phase = rings + 1.3F * growth(rings, 0.5F);
  const float t = Fraction(flow.knot > 0.0F ? flow.year : phase);
  Place place{};
  const float late = t < 0.84F ? Square(t / 0.84F) : SmoothRamp(1.0F, 0.84F, t);
  // Not every year marks the wood as strongly.
  place.ring = late * (0.45F + 0.55F * Unit(HashAt(FloorInt(phase), 5, seed)));
  place.knot = flow.knot;

  const float fy = wy + flow.shift;
  const Fbm coarse{9.0F, 3, 0.6F, seed + 13};
  const Fbm fine{2.4F, 2, 0.8F, seed + 14};
  place.fibre = 0.6F * coarse(x * 0.03F, fy) + 0.7F * fine(x * 0.04F, fy);
  const Fbm check{38.0F, 4, 0.5F, seed + 15};
  const Fbm where{330.0F, 3, 0.5F, seed + 16};
  // A split opens where the fibres' noise passes zero, so it has two sharp ends.
  const float open = SoftThreshold(where(x * 0.4F, y), 0.16F, 0.45F);
  if (open > 0.0F) place.split = open * SmoothRamp(0.052F, 0.018F, Abs(check(x * 0.020F, fy)));
  return place;
}

}  // namespace tarnwick::content
