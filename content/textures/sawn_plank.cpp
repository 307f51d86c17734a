// Sawn_Plank: fresh boards from the mill, not planed. The round saw bit its
// strokes into them, arcs as wide as its blade and uneven as the log was pushed;
// fibres stand up as fuzz along each, the grain shows faintly through, and each
// board was cut at another speed.
//
// What makes it read as that: arcs across the grain that keep their radius,
// a burnt one now and then where the log stuck, splinters torn off at edges.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

struct Board {
  float v, breadth;  // from its upper edge, pixels
  std::uint32_t hash;
};

Board BoardAt(float y, std::uint32_t seed) {
  float top = -140.0F;
  for (int i = 0;; ++i) {
    const std::uint32_t h = HashAt(i, 8, seed);
    const float breadth = 330.0F + 190.0F * Unit(h);
    if (y < top + breadth) return {y - top, breadth, h};
    top += breadth;
  }
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Fbm waver{300.0F, 3, 0.5F, seed + 1};
  const Fbm chip{26.0F, 4, 0.65F, seed + 2};
  const Survey<Board> boards(sheet, [&](Spot p) {
    return BoardAt(p.fy + 4.0F * waver(p.fx, p.fy * 0.2F) + 2.0F * chip(p.fx * 0.4F, p.fy), seed);
  });
  const Fbm years{30.0F, 3, 0.55F, seed + 10};
  const Fbm fibre{3.0F, 3, 0.7F, seed + 11};
  const Fbm sway{500.0F, 3, 0.5F, seed + 12};
  const Fbm bite{13.0F, 3, 0.62F, seed + 13};
  const Fbm feed{60.0F, 2, 0.55F, seed + 14};
  const Fbm press{260.0F, 4, 0.56F, seed + 15};
  struct Cut {
    float grain;   // the wood's own figure
    float stroke;  // -1..1, the teeth's
    float burn;    // 0..1
  };
  const Survey<Cut> cuts(sheet, [&](Spot p) {
    const Board& at = boards(p);
    const float x = p.fx + 7000.0F * Unit(Hash(at.hash + 1));
    const float y = at.v + 2000.0F * Unit(Hash(at.hash + 2)) + 26.0F * sway(x * 0.3F, at.v);
    const float t = Fraction(y / 24.0F + 1.3F * years(x * 0.03F, y));
    const float late = t < 0.8F ? Square(t / 0.8F) : SmoothRamp(1.0F, 0.8F, t);
    const float grain = 0.6F * (late - 0.3F) + 0.5F * fibre(x * 0.03F, y);
    // The blade's middle lies below or above the board.
    const bool above = (at.hash & 1U) != 0;
    const float radius = 720.0F + 240.0F * Unit(Hash(at.hash + 3));
    const float h = above ? at.v + 0.35F * radius : at.breadth - at.v + 0.35F * radius;
    const float arc = Sqrt(Max(0.0F, radius * radius - h * h));
    const float along =
        (Unit(Hash(at.hash + 4)) < 0.5F ? x + arc : x - arc) + 2.2F * fibre(x * 0.05F, y);
    const float pace = 1.0F + 0.5F * Unit(Hash(at.hash + 5));
    const float stroke = bite(along * pace, at.v * 0.05F) + 0.55F * feed(along, at.v * 0.03F);
    const float stuck = feed(along * 0.42F + 900.0F, 3.0F) + 0.25F * press(p);
    return Cut{grain, stroke, SoftThreshold(stuck, 0.46F, 0.22F)};
  });
  const Fbm fuzz{2.6F, 2, 0.75F, seed + 20};
  const Field gap = Painted(sheet, [&](Spot p) {
    const Board& at = boards(p);
    const float side = Min(at.v, at.breadth - at.v);
    return SmoothRamp(5.5F, 2.0F, side + 1.2F * chip(p));
  });
  const Field relief = Painted(sheet, [&](Spot p) {
    const Board& at = boards(p);
    const Cut& cut = cuts(p);
    const float deep = 0.65F + 0.8F * press(p) + 0.3F * Unit(Hash(at.hash + 6));
    return 2.6F * deep * cut.stroke + 0.5F * cut.grain + 0.35F * fuzz(p.fx * 0.3F, p.fy) -
           5.0F * gap(p) + 2.5F * Unit(Hash(at.hash + 7));
  });
  const Field light = Relief(sheet, relief, 0.30F);
  Field tone = Painted(sheet, [&](Spot p) {
    const Board& at = boards(p);
    const Cut& cut = cuts(p);
    float value = 0.68F + 0.14F * (Unit(Hash(at.hash + 8)) - 0.5F) - 0.15F * cut.grain +
                  0.10F * press(p) + 0.06F * fuzz(p.fx * 0.3F, p.fy) + 0.10F * cut.stroke;
    value *= 1.0F - 0.50F * cut.burn * (0.8F + 0.3F * cut.stroke);
    value += 0.26F * light(p);
    return value * (1.0F - 0.92F * gap(p));
  });
  StretchTo(sheet, tone, 0.004F, 0.996F);
  return tone;
}

const RegisteredTexture kSawnPlank(TextureRecipe{
    .name = "Sawn_Plank",
    .set = TextureSet::kTimberYard,
    .effects = {"Woods", "Industrial", "Texture (Medium)"},
    .seed = 3009,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
