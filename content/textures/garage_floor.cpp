// Garage_Floor: the concrete of a workshop where motorcycles stood. Oil dripped
// in the same places for years and crept outwards; a tray left its ring; tyres
// drew their tread through it and away; somebody swept, and the trowel's arcs
// came up again.
//
// What makes it read as that: drops that are black in the middle and brown and
// soft outside, satellites thrown out about them, a tread that fades.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/stains.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

// Drops about a few places where engines stood.
void AddOil(StrokeSet& strokes, const Sheet& sheet, std::uint32_t seed) {
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  const float stands[][3] = {{0.30F, 0.36F, 300.0F},
                             {0.74F, 0.62F, 420.0F},
                             {0.14F, 0.84F, 220.0F},
                             {0.88F, 0.12F, 200.0F}};
  for (std::uint32_t k = 0; k < 4; ++k) {
    const float x = stands[k][0] * width;
    const float y = stands[k][1] * height;
    const float spread = stands[k][2];
    for (int i = 0; i < 80; ++i) {
      Dice dice(seed + k, i);
      const float size = dice.Unit();
      const float radius = 2.0F + 34.0F * size * size * size * size * size;
      const float dx = dice.Around(0.0F, 0.5F) * spread;
      const float dy = dice.Around(0.0F, 0.42F) * spread;
      const float near = Clamp01(1.2F - Length(dx, dy) / spread);
      const StrokePoint drop[] = {
          {x + dx, y + dy, radius, dice.Between(0.35F, 0.75F) + 0.25F * near}};
      strokes.Add(drop);
      if (radius > 12.0F) AddSplash(strokes, x + dx, y + dy, radius * 3.2F, 26, dice.Word());
    }
  }
}

// 0..1: rubber from a tyre of about `half` pixels half width, `u` along it and
// `v` across from its middle.
float Tread(float u, float v, float half) {
  const float across = Abs(v) / half;
  if (across > 1.0F) return 0.0F;
  // Chevrons with a groove in the middle and blocks at the shoulders.
  const float lean = u - 0.9F * Abs(v);
  const float bar = Abs(Fraction(lean / 54.0F) - 0.5F) * 2.0F;
  const float block =
      across > 0.62F ? SmoothRamp(0.30F, 0.44F, bar) : SmoothRamp(0.24F, 0.36F, bar);
  const float grooves =
      SmoothRamp(0.02F, 0.06F, Abs(across - 0.62F)) * SmoothRamp(0.03F, 0.09F, across);
  return block * grooves * SmoothRamp(1.0F, 0.93F, across);
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  StrokeSet drops;
  AddOil(drops, sheet, seed + 1);
  Field oil(sheet);
  drops.Draw(sheet, oil, {.ragged = 3.0F, .raggedPeriod = 21.0F, .seed = seed + 2});
  Soften(sheet, oil, 0.4F);
  Field crept = oil;
  Blur(sheet, crept, 7.0F);
  Field old = oil;
  Blur(sheet, old, 42.0F);

  const Fbm wear{130.0F, 5, 0.6F, seed + 10};
  const Fbm grit{4.0F, 3, 0.72F, seed + 11};
  const Fbm cloud{420.0F, 6, 0.58F, seed + 12};
  const Fbm patch{46.0F, 5, 0.64F, seed + 13};
  const Fbm sweep{11.0F, 3, 0.6F, seed + 14};
  const Fbm bend{520.0F, 2, 0.5F, seed + 15};
  const Field tyre = Painted(sheet, [&](Spot p) {
    float rubber = 0.0F;
    // One track bends through the large stain, an older one crosses it.
    const float u1 = 0.90F * p.fx - 0.43F * p.fy;
    const float v1 = 0.43F * p.fx + 0.90F * p.fy - 0.56F * (0.43F * width + 0.90F * height) +
                     0.00016F * Square(u1 - 700.0F) + 16.0F * bend(p);
    const float v2 = -0.66F * p.fx + 0.75F * p.fy + 0.10F * width;
    const float u2 = 0.75F * p.fx + 0.66F * p.fy;
    const float hold = Clamp01(0.62F + 1.1F * wear(p) + 0.5F * patch(p));
    rubber = Tread(u1, v1, 74.0F) * hold * SmoothRamp(-0.15F * width, 0.5F * width, u1);
    return Max(rubber, 0.55F * Tread(u2, v2 + 20.0F * bend(p), 58.0F) *
                           Clamp01(0.35F + 1.6F * wear(p.fx + 700.0F, p.fy)));
  });
  const CupRing tray{0.52F * width, 0.22F * height, 168.0F, 10.0F, 0.66F, seed + 20};
  const Spots pits{37.0F, 0.32F, 1.0F, 6.0F, seed + 21};
  const Field trowel = Painted(sheet, [&](Spot p) {
    const float dx = p.fx - 0.2F * width;
    const float dy = p.fy - 1.9F * height;
    return sweep(Length(dx, dy), (dx - dy) * 0.008F);
  });
  const Field relief = Painted(sheet, [&](Spot p) {
    return 0.40F * grit(p) + 0.9F * patch(p) + 0.5F * trowel(p) -
           2.2F * SmoothRamp(0.0F, 0.5F, pits(p).depth) + 8.0F * cloud(p);
  });
  const Field light = Relief(sheet, relief, 0.6F);
  Field tone = Painted(sheet, [&](Spot p) {
    float value = 0.86F + 0.15F * cloud(p) + 0.05F * patch(p) + 0.05F * grit(p) + 0.04F * trowel(p);
    const float stain = SmoothRamp(0.02F, 0.42F, old(p) + 0.07F * patch(p));
    value *= 1.0F - 0.46F * stain;
    // It crept through the pores, so that its border is eaten by them.
    const float wet = crept(p) + 0.55F * old(p) + 0.20F * patch(p) + 0.05F * grit(p);
    value *= 1.0F - 0.52F * SoftThreshold(wet, 0.22F, 0.34F);
    value *= 1.0F - 0.66F * SoftThreshold(wet, 0.74F, 0.40F) * (1.0F + 0.25F * grit(p));
    value *= 1.0F - 0.45F * oil(p) * (1.0F + 0.4F * patch(p));
    value *= 1.0F - 0.58F * tyre(p);
    value *= 1.0F - 0.60F * tray.At(p.fx, p.fy);
    return value + 0.12F * light(p) * (1.0F - 0.6F * oil(p));
  });
  StretchTo(sheet, tone, 0.003F, 0.96F);
  return tone;
}

const RegisteredTexture kGarageFloor(TextureRecipe{
    .name = "Garage_Floor",
    .set = TextureSet::kWallsAndSigns,
    .effects = {"Industrial", "Distress (Medium)", "Weathered/Aged"},
    .seed = 3040,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
