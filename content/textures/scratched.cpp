// Scratched: a photographic print that went from hand to hand. The emulsion is
// whole over most of it (white); nails and grit have cut it, a drawer has
// scuffed it, the rim is rubbed down to the paper and one corner was folded.
//
// What makes it read as that: scratches in bundles that share a direction, each
// with its own pressure and skips; scuffs that are many hair lines and not a
// grey veil; wear that gathers at the rim and is torn, not blurred.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

// Long cuts right across, alone or two or three side by side.
void AddCuts(StrokeSet& cuts, const Sheet& sheet) {
  Dice dice(sheet.seed);
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  for (int i = 0; i < 26; ++i) {
    const float x = dice.Between(-0.05F, 1.0F) * w;
    const float y = dice.Between(0.0F, 1.0F) * h;
    // Most run along the long way of the print, as it slid in and out.
    const float heading = dice.Chance(0.7F) ? dice.Around(0.12F, 0.35F) : dice.Between(0.0F, kTau);
    Walk walk{.length = dice.Between(180.0F, 1500.0F),
              .heading = heading,
              .bend = dice.Around(0.0F, 0.03F),
              .wobble = 0.05F,
              .radius = dice.Between(0.5F, 1.5F),
              .strength = dice.Between(0.6F, 1.1F),
              .taper = 0.3F,
              .skip = dice.Between(0.4F, 1.8F),
              .skipPeriod = dice.Between(20.0F, 90.0F)};
    const int lines = dice.Chance(0.35F) ? 3 : 1;
    for (int k = 0; k < lines; ++k) {
      AddWalk(cuts, x + dice.Around(0.0F, 7.0F),
              y + static_cast<float>(k) * dice.Between(3.0F, 9.0F), walk, dice.Word());
      walk.radius *= 0.6F;
      walk.length *= dice.Between(0.4F, 0.9F);
    }
  }
}

// Scuffs: hair lines by the hundred, side by side where something rubbed.
void AddScuffs(StrokeSet& hairs, const Sheet& sheet) {
  Dice dice(sheet.seed + 1);
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  for (int i = 0; i < 34; ++i) {
    const float cx = dice.Unit() * w;
    const float cy = dice.Unit() * h;
    const float heading = dice.Chance(0.6F) ? dice.Around(0.15F, 0.5F) : dice.Between(0.0F, kPi);
    const float along = dice.Between(50.0F, 240.0F);
    const float across = dice.Between(20.0F, 90.0F);
    const int lines = FloorInt(dice.Between(20.0F, 110.0F));
    for (int k = 0; k < lines; ++k) {
      const float u = dice.Around(0.0F, 0.5F) * along;
      const float v = dice.Around(0.0F, 0.5F) * across;
      const Walk walk{.length = dice.Between(0.2F, 1.0F) * along,
                      .heading = heading + dice.Around(0.0F, 0.12F),
                      .bend = dice.Around(0.0F, 0.1F),
                      .radius = dice.Between(0.2F, 0.55F),
                      .strength = dice.Between(0.2F, 0.75F),
                      .taper = 0.4F,
                      .skip = 1.0F,
                      .skipPeriod = 25.0F};
      AddWalk(hairs, cx + Cos(heading) * u - Sin(heading) * v,
              cy + Sin(heading) * u + Cos(heading) * v, walk, dice.Word());
    }
  }
  // Single hairs everywhere keep the ground from looking new.
  for (int i = 0; i < 900; ++i) {
    const Walk walk{.length = dice.Between(15.0F, 160.0F),
                    .heading = dice.Between(0.0F, kTau),
                    .bend = dice.Around(0.0F, 0.25F),
                    .radius = dice.Between(0.15F, 0.5F),
                    .strength = dice.Between(0.15F, 0.6F),
                    .taper = 0.4F,
                    .skip = 0.8F};
    AddWalk(hairs, dice.Unit() * w, dice.Unit() * h, walk, dice.Word());
  }
}

// How much a place was handled, 0..1: the rim most, and a few places within.
float Handling(const Sheet& sheet, Spot p) {
  const float toSide = Min(p.fx, static_cast<float>(sheet.width - 1) - p.fx);
  const float toEnd = Min(p.fy, static_cast<float>(sheet.height - 1) - p.fy);
  const float rim = Exp(-Min(toSide, toEnd) / 28.0F);
  const float corner = Exp(-(toSide + toEnd) / 110.0F);
  const Fbm patches{430.0F, 3, 0.5F, sheet.seed + 20};
  const float patch = SmoothRamp(0.25F, 0.9F, patches(p));
  return Clamp01(0.75F * rim + 0.8F * corner + 0.5F * patch);
}

Field Paint(const Sheet& sheet) {
  StrokeSet cuts;
  StrokeSet hairs;
  AddCuts(cuts, sheet);
  AddScuffs(hairs, sheet);
  Field cut(sheet);
  cuts.Draw(sheet, cut, {.ragged = 0.6F, .raggedPeriod = 3.5F, .seed = sheet.seed + 5});
  Field hair(sheet);
  hairs.Draw(sheet, hair, {.ragged = 0.25F, .raggedPeriod = 3.0F, .seed = sheet.seed + 6});

  const Fbm grit{7.0F, 3, 0.7F, sheet.seed + 30};
  const Fbm tear{70.0F, 5, 0.6F, sheet.seed + 31};
  const Warp torn{5.0F, {14.0F, 3, 0.6F, sheet.seed + 32}};
  const Spots chips{58.0F, 0.10F, 1.2F, 13.0F, sheet.seed + 33};
  const Spots dust{17.0F, 0.10F, 0.5F, 1.8F, sheet.seed + 34};
  return Painted(sheet, [&](Spot p) {
    const float handling = Handling(sheet, p);
    // Rubbed through: the grit of the paper shows first, then all of it.
    const float rubbed =
        SoftThreshold(handling * 1.15F + 0.30F * tear(p) + 0.16F * grit(p), 0.74F, 0.16F);
    const float veil = 0.30F * SmoothRamp(0.25F, 0.9F, handling + 0.35F * grit(p));
    const float chip = SoftThreshold(chips(torn(p)).depth, 0.12F, 0.14F);
    const float speck = SoftThreshold(dust(p).depth, 0.25F, 0.4F) * 0.8F;
    const float damage = Max(Max(Max(cut(p), chip), Max(rubbed, speck)), Max(hair(p), veil));
    return 1.0F - Clamp01(damage);
  });
}

const RegisteredTexture kScratched(TextureRecipe{
    .name = "Scratched",
    .set = TextureSet::kDarkroom,
    .effects = {"Scratches", "Distress (Medium)", "Erosion (Light)"},
    .seed = 1931,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
