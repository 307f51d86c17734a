// Marble_Veins: a slab of white statuary marble. Grey clouds drift through it on
// one slant; veins run with them, fork, swell and thin out to hairs, and a few
// old breaks healed across them.
//
// What makes it read as that: most of it is nearly white; a vein is sharp on
// one side and bleeds on the other; thick veins split around islands; crystals
// so fine that only a sparkle is left.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

// The strength of a vein where `v` passes zero: a sharp line and a bleed that
// lies on one side of it.
float Vein(float v, float width, float bleed) {
  const float line = Exp(-Square(v / width));
  const float soft = v > 0.0F ? Exp(-v / bleed) : Exp(v / (0.25F * bleed));
  return Max(line, 0.55F * soft);
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Warp drift{210.0F, {620.0F, 3, 0.5F, seed}};
  const Warp crumple{34.0F, {120.0F, 4, 0.55F, seed + 5}};
  const Fbm cloud{420.0F, 6, 0.56F, seed + 10};
  const Fbm main{560.0F, 3, 0.45F, seed + 20};
  const Fbm second{300.0F, 3, 0.5F, seed + 24};
  const Fbm pressure{260.0F, 4, 0.55F, seed + 30};
  const Fbm mottled{44.0F, 4, 0.6F, seed + 34};
  const Cells healed{430.0F, 1.0F, seed + 40};
  const Cells crystals{4.5F, 1.0F, seed + 41};

  Field tone = Painted(sheet, [&](Spot p) {
    const Spot q = crumple(drift(p));
    // Everything leans from the upper left to the lower right.
    const float u = 0.83F * q.fx + 0.56F * q.fy;
    const float v = 0.83F * q.fy - 0.56F * q.fx;
    const float press = pressure(p);
    const float strong = SmoothRamp(-0.18F, 0.45F, press);
    const float soft = cloud(u * 0.42F, v);
    const float fine = mottled(q);
    const float a = main(u * 0.36F, v * 1.1F) + 0.05F * fine;
    const float b = second(u * 0.40F + 900.0F, v * 1.2F) - 0.14F * fine;
    const float veinA =
        Vein(a, 0.010F + 0.030F * strong, 0.06F + 0.10F * strong) * (0.30F + 0.70F * strong);
    const float gate = SmoothRamp(-0.05F, 0.30F, cloud(p.fx * 0.7F + 4000.0F, p.fy * 0.7F));
    const float veinB = Vein(b, 0.014F, 0.07F) * gate;
    const CellSample cell = healed.WithEdge(u * 0.62F, v * 1.15F);
    const float across = Exp(-Square(cell.edge * 430.0F / (1.2F + 2.2F * strong))) *
                         SmoothRamp(0.35F, 0.75F, Unit(Hash(cell.hash + 5)) + 0.6F * press);
    float value = 0.93F - 0.22F * SmoothRamp(0.02F, 0.62F, soft) * (0.8F + 0.5F * fine);
    value -= 0.05F * (cell.id - 0.5F);
    value *= 1.0F - 0.80F * veinA * (0.86F + 0.4F * fine);
    value *= 1.0F - 0.42F * veinB;
    value *= 1.0F - 0.38F * across;
    const float sparkle = crystals(p.fx, p.fy).id - 0.5F;
    return value + 0.030F * sparkle + 0.035F * fine;
  });
  Soften(sheet, tone, 0.4F);
  StretchTo(sheet, tone, 0.0015F, 0.93F);
  return tone;
}

const RegisteredTexture kMarbleVeins(TextureRecipe{
    .name = "Marble_Veins",
    .set = TextureSet::kQuarry,
    .effects = {"Stone/Minerals", "Texture (Light)", "Ephemeral"},
    .seed = 2020,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
