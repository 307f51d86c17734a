// Torn_Carton: the side of a corrugated carton from which labels and tape were torn,
// and the liner with them.
//
// What makes it read as that: fluting laid bare, lit from one side; steps down
// through two or three plies with a soft white lip; strips that tore along
// the flutes; faint ribs that show through what is left of the liner.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  StrokeSet fuzz;
  for (int i = 0; i < FloorInt(w * h / 2600.0F); ++i) {
    Dice dice(seed + 1, i);
    AddWalk(fuzz, {.x = dice.Unit() * w,
                   .y = dice.Unit() * h,
                   .length = dice.Between(8.0F, 44.0F),
                   .heading = dice.Around(0.0F, 1.2F),
                   .wobble = 2.0F,
                   .wobblePeriod = 16.0F,
                   .radius = dice.Between(0.4F, 0.9F),
                   .strength = dice.Between(0.2F, 0.9F),
                   .step = 5.0F,
                   .seed = dice.Word()});
  }
  Field fibre(sheet);
  fuzz.Draw(sheet, fibre, {.profile = StrokeProfile::kRound});

  constexpr float kFlute = 41.0F;
  const Fbm sway{900.0F, 2, 0.4F, seed + 2};
  const Fbm crushed{170.0F, 2, 0.55F, seed + 3};
  const Warp jerk{26.0F, {110.0F, 3, 0.6F, seed + 4}};
  const Fbm broad{520.0F, 3, 0.5F, seed + 5};
  const Fbm rip{64.0F, 4, 0.6F, seed + 6};
  const Field flute = Painted(sheet, [&](Spot p) { return (p.fx + 14.0F * sway(p)) / kFlute; });
  const Field wave = Painted(sheet, [&](Spot p) { return 0.5F + 0.5F * Cos(kTau * flute(p)); });
  // Torn along the flutes, so places are stretched upright and steps fall
  // between two flutes.
  const Field loss = Painted(sheet, [&](Spot p) {
    const Spot q = jerk(p);
    const float turn = flute(p);
    const float strip = Unit(HashAt(FloorInt(turn), FloorInt(q.fy / 520.0F), seed + 7)) - 0.5F;
    return broad(q.fx * 1.2F, q.fy * 0.50F) + 0.20F * rip(q.fx, q.fy * 0.4F) + 0.13F * strip -
           0.07F * wave(p);
  });
  const Fbm pulpNoise{4.6F, 3, 0.72F, seed + 8};
  const Field pulp = Painted(sheet, pulpNoise);
  const Fbm lap{40.0F, 4, 0.62F, seed + 9};
  const Field ragged = Painted(sheet, [&](Spot p) { return 0.05F + 0.09F * lap(p); });
  constexpr float kLiner = 0.10F;
  const auto bare = [&](Spot p) { return SoftThreshold(loss(p), kLiner, 0.012F); };
  const Field open =
      Painted(sheet, [&](Spot p) { return SoftThreshold(loss(p) - ragged(p), kLiner, 0.014F); });
  const auto deep = [&](Spot p) {
    return SoftThreshold(loss(p) - 1.4F * ragged(p), 0.34F, 0.014F);
  };
  const Field height = Painted(sheet, [&](Spot p) {
    const float rib = wave(p) * Clamp01(0.75F + 0.8F * crushed(p));
    const float outer = 1.9F - 0.35F * bare(p) + 0.16F * rib;
    const float inner = 1.35F * rib - 0.2F + 0.5F * Clamp01(crushed(p));
    return Mix(Mix(outer, inner, open(p)), -0.5F, deep(p)) + 0.06F * pulp(p);
  });
  const Field light = Relief(sheet, height, 0.10F);
  Field shadow = Painted(sheet, [&](Spot p) { return 1.0F - open(p); });
  Blur(sheet, shadow, 7.0F);
  const Fbm dirt{260.0F, 3, 0.56F, seed + 10};
  Field tone = Painted(sheet, [&](Spot p) {
    const float gone = open(p);
    const float lip = 0.90F + 0.08F * pulp(p);
    const float liner = 0.64F + 0.09F * dirt(p) + 0.05F * pulp(p) + 0.55F * (ragged(p) - 0.05F);
    const float core = 0.40F + 0.20F * wave(p) + 0.06F * dirt(p) + 0.05F * pulp(p);
    const float back = 0.28F + 0.06F * dirt(p) + 0.05F * pulp(p);
    float value = Mix(Mix(liner, lip, bare(p)), Mix(core, back, deep(p)), gone);
    value *= 1.0F - 0.42F * gone * shadow(p);
    value += 0.32F * light(p) * (0.6F + 0.4F * gone);
    return Mix(value, value + 0.16F, fibre(p) * (0.4F + 0.6F * bare(p)));
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.003F, 0.996F);
  return tone;
}

const RegisteredTexture kTornCarton(TextureRecipe{
    .name = "Torn_Carton",
    .set = TextureSet::kPaperDrawer,
    .effects = {"Papers", "Industrial", "Distress (Heavy)", "Texture (Heavy)"},
    .seed = 1020,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
