// Rusted: a sheet of iron that stood outdoors for decades. Old rust has built
// up in dark scabs that split and break off at the rim; young rust lies on them
// as bright powder, thrown in speckles; a little mill scale is left, dark and
// smooth. Rain drew it all downwards.
//
// What makes it read as that: mottling at every size at once, borders that are
// broken on one side and dusty on the other, grain rough on the scabs and fine
// elsewhere, pits with a lit far wall.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/rust.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Warp drawn{75.0F, {260.0F, 3, 0.5F, seed}};
  const Warp grown{15.0F, {32.0F, 4, 0.62F, seed + 5}};
  const Fbm old{430.0F, 6, 0.56F, seed + 10};
  const Fbm young{230.0F, 6, 0.60F, seed + 11};
  const Fbm crust{22.0F, 4, 0.66F, seed + 20};
  const Fbm grain{5.0F, 3, 0.75F, seed + 30};
  const Fbm fine{2.4F, 2, 0.7F, seed + 31};
  const Fbm rain{250.0F, 7, 0.64F, seed + 32};
  const Fbm gusts{330.0F, 3, 0.5F, seed + 33};

  // Columns of rain: long noise, stretched downwards.
  const Field streak = Painted(sheet, [&](Spot p) {
    return rain(p.fx * 2.6F, p.fy * 0.14F) * (0.45F + 1.1F * SmoothRamp(-0.3F, 0.5F, gusts(p)));
  });
  const Field scab = Painted(sheet, [&](Spot p) {
    const Spot q = grown(drawn(p));
    return old(q) + 0.20F * crust(p) + 0.07F * grain(p) + 0.10F * streak(p);
  });
  const RustBloom bloom(seed + 40);
  const Field powder = Painted(sheet, [&](Spot p) {
    const Spot q = grown(p);
    const float reach = young(drawn(q)) - 0.35F * Max(0.0F, scab(p)) + 0.14F * streak(p);
    return bloom.At(p, q, reach);
  });

  const Cells splits{36.0F, 1.0F, seed + 50};
  const Spots pits{13.0F, 0.55F, 0.8F, 6.0F, seed + 60};
  const Fbm pitted{110.0F, 4, 0.6F, seed + 61};
  const Field pit = Painted(sheet, [&](Spot p) {
    const Spot q{p.x, p.y, p.fx + 2.0F * grain(p), p.fy + 2.0F * crust(p)};
    return SmoothRamp(0.0F, 0.6F, pits(q).depth) * SoftThreshold(pitted(p), 0.05F, 0.5F) *
           (1.0F - 0.6F * SoftThreshold(scab(p), 0.14F, 0.05F));
  });
  const Field split = Painted(sheet, [&](Spot p) {
    const float deep = SoftThreshold(scab(p), 0.34F, 0.2F);
    if (deep <= 0.0F) return 0.0F;
    const Spot q = grown(p);
    return SmoothRamp(0.07F, 0.015F, splits.WithEdge(q.fx, q.fy).edge) * deep;
  });
  const Field height = Painted(sheet, [&](Spot p) {
    const float thick = SoftThreshold(scab(p), 0.14F, 0.035F);
    const float thicker = SoftThreshold(scab(p), 0.40F, 0.04F);
    return 0.55F * thick + 0.40F * thicker + (0.22F + 0.22F * thick) * crust(p) +
           (0.13F + 0.13F * powder(p)) * grain(p) - 0.55F * pit(p) - 0.5F * split(p) +
           0.05F * fine(p);
  });
  const Field light = Relief(sheet, height, 0.20F);

  const Fbm cloud{210.0F, 7, 0.62F, seed + 70};
  Field tone = Painted(sheet, [&](Spot p) {
    const float thick = SoftThreshold(scab(p), 0.14F, 0.05F);
    const float thicker = SoftThreshold(scab(p), 0.40F, 0.06F);
    const float bare = SoftThreshold(-scab(p) - 0.1F * powder(p), 0.60F, 0.07F);
    const Spot q = drawn(p);
    float value = 0.54F + 0.26F * cloud(q) + 0.12F * crust(p) + 0.09F * grain(p);
    value = Mix(value, 0.28F + 0.16F * cloud(q) + 0.13F * crust(p) + 0.07F * grain(p), thick);
    value = Mix(value, 0.13F + 0.08F * crust(p) + 0.05F * grain(p), thicker);
    value = Mix(value, 0.17F + 0.05F * cloud(p) + 0.04F * fine(p), bare);
    value = Mix(value, 0.86F + 0.10F * grain(p) + 0.06F * crust(p), 0.80F * powder(p));
    value += 0.11F * streak(p) * (1.0F - 0.5F * thick) - 0.20F * split(p);
    value -= 0.22F * pit(p);
    return value + (0.10F + 0.12F * thick) * light(p) * (1.0F - 0.7F * bare);
  });
  StretchTo(sheet, tone, 0.001F, 0.998F);
  return tone;
}

const RegisteredTexture kRusted(TextureRecipe{
    .name = "Rusted",
    .set = TextureSet::kForge,
    .effects = {"Metals", "Industrial", "Weathered/Aged", "Texture (Heavy)"},
    .seed = 42,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
