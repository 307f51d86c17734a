// Barn_Wood: one broad board from the weather side of a barn. Rain washed the
// soft early wood out and left the rings standing as ridges; sun turned it
// silver; it split along the grain and around its knots.
//
// What makes it read as that: arched rings, ridges with one steep flank, knots
// about which the grain streams, splits that follow the fibres and are black.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"
#include "toolbox/wood.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Wood wood{.seed = seed};
  const Survey<Wood::Place> board(sheet, [&](Spot p) { return wood.At(p.fx, p.fy); });

  const Fbm pore{3.0F, 2, 0.65F, seed + 40};
  const Fbm weather{330.0F, 5, 0.55F, seed + 41};
  const Field height = Painted(sheet, [&](Spot p) {
    const Wood::Place& at = board(p);
    const float knot = SmoothRamp(0.0F, 0.25F, at.knot);
    return 0.60F * at.ring + 0.42F * at.fibre + 0.10F * pore(p.fx * 0.08F, p.fy) + 0.30F * knot -
           1.6F * at.split;
  });
  const Field light = Relief(sheet, height, 0.16F);
  Field tone = Painted(sheet, [&](Spot p) {
    const Wood::Place& at = board(p);
    float value = 0.62F - 0.30F * at.ring + 0.17F * at.fibre + 0.15F * weather(p.fx * 0.6F, p.fy);
    // A knot is darker than the board and darkest where its bark was.
    const float core = SmoothRamp(0.0F, 0.12F, at.knot);
    value -= core * (0.26F - 0.12F * at.ring) + 0.22F * core * SmoothRamp(0.32F, 0.05F, at.knot);
    value += 0.20F * light(p);
    return value * (1.0F - 0.9F * at.split);
  });
  StretchTo(sheet, tone, 0.002F, 0.997F);
  return tone;
}

const RegisteredTexture kBarnWood(TextureRecipe{
    .name = "Barn_Wood",
    .set = TextureSet::kTimberYard,
    .effects = {"Woods", "Weathered/Aged", "Texture (Heavy)"},
    .seed = 1790,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
