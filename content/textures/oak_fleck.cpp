// Oak_Fleck: the side of an oak wardrobe, sawn on the quarter and waxed for a
// hundred years. Years run straight up and down; where the saw met the rays
// they show as bright flecks that lie across, lens after lens; pores are short
// dark dashes filled with old wax.
//
// What makes it read as that: flecks that all slant one way but come in
// shoals, brighter than all else; dashes that follow the years between them.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Fbm sway{800.0F, 2, 0.5F, seed + 1};
  const Fbm growth{46.0F, 3, 0.6F, seed + 2};
  const Fbm pores{3.1F, 2, 0.75F, seed + 3};
  const Fbm streak{9.0F, 3, 0.65F, seed + 4};
  const Field along =
      Painted(sheet, [&](Spot p) { return p.fx + 42.0F * sway(p.fx, p.fy * 0.5F) + 0.02F * p.fy; });
  const Field year = Painted(sheet, [&](Spot p) {
    const float x = along(p);
    const float t = Fraction(x / 52.0F + 0.9F * growth(x, p.fy * 0.02F));
    return t < 0.7F ? t / 0.7F : SmoothRamp(1.0F, 0.7F, t);
  });
  // A shoal of rays: noise drawn out across the grain, cut where it crests.
  const Fbm lens{19.0F, 3, 0.52F, seed + 10};
  const Fbm large{34.0F, 3, 0.5F, seed + 11};
  const Fbm shoal{300.0F, 4, 0.55F, seed + 12};
  const Warp wavy{10.0F, {60.0F, 3, 0.5F, seed + 13}};
  const Field fleck = Painted(sheet, [&](Spot p) {
    const Spot q = wavy(p);
    const float slant = q.fy - 0.34F * q.fx + 0.00016F * q.fx * q.fx;
    const float many = shoal(p.fx * 1.4F, p.fy * 0.5F);
    const float a = SoftThreshold(lens(along(p) * 0.22F, slant) + 0.42F * many, 0.40F, 0.30F);
    const float b =
        SoftThreshold(large(along(p) * 0.16F + 300.0F, slant * 1.05F) + 0.60F * many, 0.54F, 0.30F);
    return Max(0.8F * a, b);
  });
  const Fbm silk{2.6F, 2, 0.7F, seed + 14};
  const Fbm wax{360.0F, 5, 0.55F, seed + 20};
  const Field dash = Painted(sheet, [&](Spot p) {
    return SoftThreshold(pores(along(p), p.fy * 0.075F) + 0.22F * (0.5F - year(p)), 0.53F, 0.22F) *
           (1.0F - 0.85F * fleck(p));
  });
  const Field height = Painted(sheet, [&](Spot p) {
    return 0.30F * fleck(p) - 0.26F * dash(p) + 0.12F * streak(along(p), p.fy * 0.03F);
  });
  const Field light = Relief(sheet, height, 0.20F);
  Field tone = Painted(sheet, [&](Spot p) {
    const float x = along(p);
    float value = 0.50F - 0.13F * year(p) + 0.09F * streak(x, p.fy * 0.02F) + 0.15F * wax(p);
    value = Mix(value, 0.84F + 0.12F * wax(p) + 0.12F * silk(p.fx * 0.12F, p.fy), 0.70F * fleck(p));
    value -= 0.15F * dash(p);
    return value + 0.09F * light(p);
  });
  StretchTo(sheet, tone, 0.004F, 0.996F);
  return tone;
}

const RegisteredTexture kOakFleck(TextureRecipe{.name = "Oak_Fleck",
                                                .set = TextureSet::kTimberYard,
                                                .effects = {"Woods", "Texture (Light)"},
                                                .seed = 3005,
                                                .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
