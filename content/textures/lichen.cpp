// Lichen: a boundary stone in the hills, overgrown for a century. Lichens grow
// outwards in rosettes, crack like paint in their old middles, carry rings and
// small black cups; where two meet, a dark seam is left.
//
// What makes it read as that: lobed rims that are paler than the rest, rosettes
// of many sizes in few tones, rough dark stone where none has got to.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

struct Thallus {
  float inside;  // pixels within its rim
  float far;     // 0 at its middle, 1 at its rim
  std::uint32_t hash;
  float seam;  // 0..1, near the border with another
};

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Warp lobes{13.0F, {30.0F, 3, 0.58F, seed + 1}};
  const Warp odd{44.0F, {190.0F, 3, 0.5F, seed + 2}};
  const Spots large{290.0F, 0.85F, 84.0F, 230.0F, seed + 3};
  const Spots middle{150.0F, 0.62F, 22.0F, 84.0F, seed + 6};
  const Spots small{58.0F, 0.34F, 4.0F, 26.0F, seed + 4};
  const Survey<Thallus> growth(sheet, [&](Spot p) {
    const Spot q = lobes(odd(p));
    const Spots::Hit a = large(q);
    Spots::Hit b = middle(q);
    const Spots::Hit c = small(q);
    if (c.depth * c.radius > b.depth * b.radius) b = c;
    const float ia = a.depth * a.radius;
    const float ib = b.depth * b.radius;
    const bool first = ia >= ib;
    const Spots::Hit& hit = first ? a : b;
    const float inside = Max(ia, ib);
    // A faint seam where the second is nearly as deep.
    const float seam = Min(ia, ib) > 0.0F ? SmoothRamp(5.0F, 0.0F, Abs(ia - ib)) : 0.0F;
    return Thallus{inside, 1.0F - hit.depth, hit.hash, seam};
  });

  const Fbm grit{5.0F, 4, 0.72F, seed + 10};
  const Field rock = Painted(sheet, Fbm{190.0F, 6, 0.6F, seed + 11});
  const Field lump = Painted(sheet, Fbm{26.0F, 4, 0.6F, seed + 12});
  const Cells areoles{17.0F, 1.0F, seed + 13};
  const Spots cups{15.0F, 0.5F, 1.6F, 5.5F, seed + 14};
  struct Detail {
    float crack, cup;
  };
  const Survey<Detail> details(sheet, [&](Spot p) {
    const Thallus& at = growth(p);
    if (at.inside <= 0.0F) return Detail{0.0F, 0.0F};
    const float old = SmoothRamp(6.0F, 40.0F, at.inside);
    if (old <= 0.0F) return Detail{0.0F, 0.0F};
    const float own = Unit(Hash(at.hash + 1));
    const float crack =
        own > 0.3F ? SmoothRamp(0.14F, 0.03F, areoles.WithEdge(p.fx + 2.5F * grit(p), p.fy).edge)
                   : 0.0F;
    const float cup = own < 0.65F ? SmoothRamp(0.05F, 0.45F, cups(p).depth) : 0.0F;
    return Detail{crack * old, cup * old};
  });
  const Field relief = Painted(sheet, [&](Spot p) {
    const Thallus& at = growth(p);
    const float there = SmoothRamp(0.0F, 4.0F, at.inside);
    const float swell = there * (1.0F + 0.6F * SmoothRamp(26.0F, 5.0F, at.inside));
    return 2.4F * swell + (0.8F - 0.2F * there) * lump(p) + (0.50F - 0.20F * there) * grit(p) +
           16.0F * rock(p) - 1.5F * details(p).crack - 0.8F * details(p).cup -
           1.6F * at.seam * there;
  });
  const Field light = Relief(sheet, relief, 0.42F);
  Field tone = Painted(sheet, [&](Spot p) {
    const Thallus& at = growth(p);
    const Detail& more = details(p);
    const float stone = 0.31F + 0.24F * rock(p) + 0.10F * lump(p) + 0.16F * grit(p);
    // Three kinds: white, grey, and a dark one with a pale hem.
    const float kind = Unit(at.hash);
    float body = kind < 0.45F ? 0.84F : (kind < 0.78F ? 0.62F : 0.42F);
    body += 0.14F * (Unit(Hash(at.hash + 2)) - 0.5F) + 0.06F * lump(p) + 0.05F * grit(p);
    // Years show as rings in some.
    body += 0.06F * Sin(at.inside * 0.45F + 2.0F * lump(p)) * Unit(Hash(at.hash + 3));
    const float hem = SmoothRamp(19.0F, 6.0F, at.inside);
    body = Mix(body, 0.93F, 0.62F * hem);
    body = Mix(
        body, 0.40F + 0.2F * Unit(Hash(at.hash + 5)),
        0.55F * SmoothRamp(0.42F, 0.05F, at.far) * (Unit(Hash(at.hash + 4)) < 0.5F ? 1.0F : 0.0F));
    body *= 1.0F - 0.55F * more.crack - 0.72F * more.cup;
    body *= 1.0F - 0.6F * at.seam;
    float value = Mix(stone, body, SmoothRamp(-0.3F, 2.5F, at.inside));
    return value + 0.26F * light(p);
  });
  Soften(sheet, tone, 0.45F);
  StretchTo(sheet, tone, 0.004F, 0.996F);
  return tone;
}

const RegisteredTexture kLichen(TextureRecipe{
    .name = "Lichen",
    .set = TextureSet::kWeatherStation,
    .effects = {"Weathered/Aged", "Stone/Minerals", "Erosion (Medium)", "Texture (Medium)"},
    .seed = 3033,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
