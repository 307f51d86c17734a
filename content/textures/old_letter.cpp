// Old_Letter: writing paper that was folded in three, kept in a damp drawer and
// opened often. Brown at the rim, foxed, worn through where creases cross.
//
// What makes it read as that: creases that are lit on one flap and dark on the
// other, with broken fibres along the line; foxing in swarms with soft halos;
// a felt of fine fibres rather than grain.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/folds.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/stains.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);

  StrokeSet felt;
  for (int i = 0; i < FloorInt(w * h / 420.0F); ++i) {
    Dice dice(seed, i);
    AddWalk(felt, {.x = dice.Unit() * w,
                   .y = dice.Unit() * h,
                   .length = dice.Between(14.0F, 60.0F),
                   .heading = dice.Between(0.0F, kTau),
                   .bend = dice.Around(0.0F, 1.5F),
                   .wobble = 2.0F,
                   .wobblePeriod = 20.0F,
                   .radius = dice.Between(0.3F, 0.8F),
                   .strength = dice.Between(0.2F, 1.0F),
                   .taper = 0.2F,
                   .step = 5.0F,
                   .seed = dice.Word()});
  }
  Field fibre(sheet);
  felt.Draw(sheet, fibre, {.profile = StrokeProfile::kRound});

  const Folds folds({{w * 0.34F, h * 0.5F, 0.5F * kPi + 0.012F, 0.9F, true},
                     {w * 0.66F, h * 0.5F, 0.5F * kPi - 0.008F, 1.0F, false},
                     {w * 0.5F, h * 0.515F, 0.006F, 1.0F, true},
                     {w * 0.93F, h * 0.08F, 0.9F, 0.45F, false}},
                    seed + 1);
  const Survey<FoldSpot> creases(sheet, [&](Spot p) { return folds.At(p.fx, p.fy); });

  const Fbm cockle{150.0F, 4, 0.5F, seed + 10};
  const Fbm tooth{3.2F, 3, 0.7F, seed + 11};
  const Field height = Painted(sheet, [&](Spot p) {
    return 0.8F * cockle(p) + 0.035F * tooth(p) + 0.05F * fibre(p) - 0.25F * creases(p).wear;
  });
  const Field light = Relief(sheet, height, 0.10F);

  const Fbm brown{360.0F, 5, 0.55F, seed + 20};
  const Fbm swarm{300.0F, 4, 0.55F, seed + 21};
  const Warp soft{5.0F, {13.0F, 3, 0.6F, seed + 22}};
  const Spots foxing{58.0F, 0.75F, 1.5F, 24.0F, seed + 23};
  const Spots freckles{19.0F, 0.5F, 0.7F, 5.0F, seed + 24};
  const Fbm nibble{34.0F, 5, 0.6F, seed + 25};
  const Puddle damp{
      .x = 0.06F * w, .y = 0.97F * h, .radius = 400.0F, .uneven = 0.55F, .seed = seed + 26};
  const TideMark mark{.rim = 3.0F, .fade = 60.0F, .body = 0.12F, .edge = 0.75F};
  Field tone = Painted(sheet, [&](Spot p) {
    const FoldSpot& crease = creases(p);
    const float rim = Min(Min(p.fx, w - 1.0F - p.fx), Min(p.fy, h - 1.0F - p.fy));
    const float toasted = Exp(-Max(0.0F, rim + 30.0F * brown(p)) / 110.0F);
    float value = 0.88F + 0.05F * brown(p) - 0.34F * toasted * (0.8F + 0.5F * nibble(p));
    const float many = SoftThreshold(swarm(p), 0.02F, 0.6F);
    const Spots::Hit fox = foxing(soft(p));
    const float blot = fox.depth * many;
    value -= 0.30F * SmoothRamp(0.0F, 1.0F, blot) + 0.22F * SmoothRamp(0.45F, 0.8F, blot);
    value -= 0.26F * SmoothRamp(0.0F, 0.7F, freckles(soft(p)).depth) * many;
    value *= 1.0F - 0.42F * mark(damp.Inside(p.fx, p.fy));
    value += 0.12F * crease.shade + 0.15F * light(p) + 0.025F * (fibre(p) - 0.4F);
    // Dirt gathers on a crease and the fibres break; the paper's rim is torn.
    value -= 0.55F * crease.wear * (0.7F + 0.6F * nibble(p));
    const float torn = SmoothRamp(5.0F, 1.0F, rim + 5.0F * nibble(p) - 1.0F);
    return value * (1.0F - 0.9F * torn);
  });
  StretchTo(sheet, tone, 0.002F, 0.985F);
  return tone;
}

const RegisteredTexture kOldLetter(TextureRecipe{
    .name = "Old_Letter",
    .set = TextureSet::kPaperDrawer,
    .effects = {"Papers", "Ephemeral", "Distress (Light)", "Texture (Light)"},
    .seed = 1862,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
