// Club_Chair: the seat of a leather chair that three generations sat in. The
// finish has broken into scales where it bends, worn through to the pale
// leather on the swell of the cushion, and torn along one crease.
//
// What makes it read as that: cracks all one way in the creases and in a net
// elsewhere, scales whose rims turn up, rubbed-through places without any
// edge, and dark sound leather where nobody sat.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/peel.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float tall = static_cast<float>(sheet.height);
  const Warp flow{46.0F, {330.0F, 3, 0.5F, seed}};
  const Warp crooked{7.0F, {26.0F, 4, 0.6F, seed + 5}};
  const Cells scales{64.0F, 1.0F, seed + 10};
  const Cells fine{23.0F, 1.0F, seed + 11};
  const Cells pebbles{10.0F, 0.9F, seed + 12};
  const Fbm crease{300.0F, 3, 0.45F, seed + 16};
  const Fbm wear{420.0F, 5, 0.54F, seed + 20};
  const Fbm fibre{4.0F, 3, 0.72F, seed + 26};
  const Fbm dye{260.0F, 5, 0.55F, seed + 30};

  const Field rough = Painted(sheet, [&](Spot p) { return fibre(p); });
  // 0 sound to 1 ruined: the seat's swell, and everywhere along the creases.
  struct Place {
    float used, line;
    float scale, scaleId, split;
  };
  const Survey<Place> places(sheet, [&](Spot p) {
    const Spot q = flow(p);
    const float dx = (p.fx - 0.46F * width) / (0.44F * width);
    const float dy = (p.fy - 0.52F * tall) / (0.44F * tall);
    const float seat = SmoothRamp(1.15F, 0.15F, Length(dx, dy));
    const float line = 1.0F - Abs(crease(q.fx * 0.30F + 0.25F * q.fy, q.fy * 1.1F));
    const float bent = SmoothRamp(0.82F, 1.0F, line);
    const float used = Clamp01(0.62F * seat + 0.40F * bent + 0.62F * wear(p) + 0.06F);
    const Spot r = crooked(q);
    // In a crease scales are long and lie across the pull.
    const CellSample a = scales.WithEdge(r.fx * 0.66F, r.fy * 1.22F);
    const CellSample b = fine.WithEdge(r.fx * 0.7F, r.fy * 1.2F);
    return Place{used, bent, a.edge * 64.0F, a.id, b.edge * 23.0F};
  });
  const Field loss = Painted(sheet, [&](Spot p) {
    const Place& at = places(p);
    const float rim = Exp(-at.scale / 7.0F);
    return at.used + 0.20F * rim + 0.30F * (at.scaleId - 0.5F) + 0.09F * rough(p) +
           0.10F * Exp(-at.split / 3.0F);
  });
  const PeelingCoat finish =
      Peel(sheet, loss, {.at = 0.80F, .softness = 0.10F, .curl = 4.0F, .thickness = 2.0F});
  const auto crackOf = [&](const Place& at) {
    const float tired = SmoothRamp(0.16F, 0.62F, at.used);
    const float wide = 0.5F + 3.6F * tired;
    const float thin = SmoothRamp(0.34F, 0.80F, at.used);
    return Max(tired * SmoothRamp(wide + 1.0F, wide - 1.0F, at.scale),
               0.85F * thin * SmoothRamp(2.0F * thin + 0.6F, 2.0F * thin - 1.0F, at.split));
  };
  const Field crack = Painted(sheet, [&](Spot p) { return crackOf(places(p)); });
  const Field height = Painted(sheet, [&](Spot p) {
    const Place& at = places(p);
    const Spot q = crooked(p);
    const float pebble = SmoothRamp(0.0F, 0.30F, pebbles.WithEdge(q.fx, q.fy).edge);
    const float curl = Exp(-at.scale / 6.0F) * SmoothRamp(0.2F, 0.7F, at.used);
    const float top =
        1.5F * pebble * (1.0F - 0.5F * at.used) + 1.8F * curl + 2.0F * finish.lift(p) + 1.6F;
    return Mix(0.9F * rough(p), top, finish.cover(p)) - 2.6F * crack(p) - 9.0F * at.line +
           12.0F * wear(p);
  });
  const Field light = Relief(sheet, height, 0.50F);
  Field tone = Painted(sheet, [&](Spot p) {
    const Place& at = places(p);
    float top = 0.30F + 0.11F * dye(p) + 0.10F * at.used;
    top += 0.30F * light(p) + 0.14F * SmoothRamp(0.35F, 0.7F, light(p));
    // Rubbed thin before it is gone.
    top = Mix(top, 0.62F + 0.12F * light(p), 0.65F * SmoothRamp(0.60F, 0.86F, loss(p)));
    float bare = 0.80F + 0.15F * rough(p) + 0.06F * dye(p) + 0.20F * light(p);
    bare *= 1.0F - 0.30F * finish.shadow(p);
    const float value = Mix(bare, top, finish.cover(p));
    return value * (1.0F - 0.78F * crack(p) * (0.10F + 0.90F * finish.cover(p)));
  });
  Soften(sheet, tone, 0.4F);
  StretchTo(sheet, tone, 0.003F, 0.997F);
  return tone;
}

const RegisteredTexture kClubChair(TextureRecipe{
    .name = "Club_Chair",
    .set = TextureSet::kHidesAndCloth,
    .effects = {"Leather", "Distress (Heavy)", "Weathered/Aged"},
    .seed = 2220,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
