#include "toolbox/wood.h"

#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

struct Flow {
  float push = 0.0F;   // rings by which the grain is pushed aside
  float shift = 0.0F;  // pixels by which fibres bend
  float knot = 0.0F;
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
      flow.push += bump * bump * radius * 0.22F * fade;
      flow.shift += (dy < 0.0F ? -1.0F : 1.0F) * bump * bump * radius * fade *
                    SmoothRamp(0.0F, 0.6F, Abs(dy));
      const float core = 1.0F - Sqrt(dx * dx + dy * dy);
      if (core > flow.knot) flow.knot = core;
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
  const float h = wy - pith + slope * x;
  const Fbm growth{7.0F, 2, 0.5F, seed + 12};
  const float rings = Sqrt(h * h + depth * depth) / ring;
  // Fat years and lean ones, and knots that push the rings aside.
  const float phase = rings + 0.8F * growth(rings * 1.3F, 0.5F) + flow.push;
  const float t = Fraction(phase);
  Place place{};
  place.ring = t < 0.86F ? Pow(t / 0.86F, 1.9F) : SmoothRamp(1.0F, 0.86F, t);
  place.knot = flow.knot;

  const float fy = wy + flow.shift;
  const Fbm coarse{9.0F, 3, 0.6F, seed + 13};
  const Fbm fine{2.6F, 2, 0.6F, seed + 14};
  place.fibre = 0.6F * coarse(x * 0.03F, fy) + 0.6F * fine(x * 0.03F, fy);
  const Fbm check{17.0F, 4, 0.55F, seed + 15};
  const Fbm where{330.0F, 3, 0.5F, seed + 16};
  const float crest = 1.0F - Abs(check(x * 0.018F, fy));
  place.split = SmoothRamp(0.965F, 0.995F, crest) * SoftThreshold(where(x * 0.5F, y), 0.05F, 0.4F);
  return place;
}

}  // namespace tarnwick::content
