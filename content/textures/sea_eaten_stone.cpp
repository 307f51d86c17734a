// Sea_Eaten_Stone: a sandstone sea wall after a hundred winters of salt. It is
// eaten to a honeycomb, deep pits with thin walls; here and there the old
// dressed face still stands.
//
// What makes it read as that: pits within pits, each in shadow under its upper
// rim, walls worn sharp, and the hollowing follows beds in the stone.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Warp worn{17.0F, {80.0F, 4, 0.56F, seed}};
  const Cells large{118.0F, 0.95F, seed + 6};
  const Cells small{44.0F, 1.0F, seed + 7};
  const Fbm attack{420.0F, 4, 0.52F, seed + 10};
  const Fbm grain{4.0F, 3, 0.74F, seed + 20};
  const Fbm rough{26.0F, 4, 0.62F, seed + 24};
  const Fbm bed{80.0F, 4, 0.5F, seed + 30};
  const Fbm fallen{150.0F, 3, 0.55F, seed + 34};
  const Fbm stain{300.0F, 5, 0.56F, seed + 36};

  const Field beds = Painted(
      sheet, [&](Spot p) { return bed((p.fx + 0.25F * p.fy) * 0.16F, p.fy - 0.08F * p.fx); });
  const Field grit = Painted(sheet, [&](Spot p) { return grain(p); });
  // 0 on the old face, down to about -1.3 at the bottom of a deep pit.
  const Field depth = Painted(sheet, [&](Spot p) {
    const Spot q = worn(p);
    const float eaten = SmoothRamp(-0.40F, -0.05F, attack(p) + 0.16F * beds(p));
    const CellSample a = large.WithEdge(q.fx * 0.86F, q.fy * 1.16F);
    const float luckA = Unit(Hash(a.hash + 1));
    const float wall = 0.035F + 0.20F * (1.0F - eaten) * (0.4F + luckA);
    const float bowlA = SmoothRamp(wall, wall + 0.20F, a.edge) * (0.38F + 0.62F * luckA);
    const CellSample b = small.WithEdge(q.fx * 0.9F, q.fy * 1.1F);
    const float luckB = Unit(Hash(b.hash + 1));
    const float bowlB = SmoothRamp(0.04F, 0.30F, b.edge) * luckB * luckB;
    // Walls stand at unequal heights: some broke down into the pits beside them.
    const float low = SmoothRamp(-0.15F, 0.35F, fallen(q)) * (1.0F - 0.6F * bowlA);
    return -SmoothRamp(0.0F, 0.35F, eaten) *
           (1.15F * bowlA + 0.42F * bowlB * (0.5F + 0.5F * eaten) + 0.62F * low);
  });
  const Field height = Painted(sheet, [&](Spot p) {
    return 34.0F * depth(p) + 1.7F * rough(p) + 1.2F * beds(p) + 0.65F * grit(p);
  });
  const Field light = Relief(sheet, height, 0.75F);
  Field around = height;
  Blur(sheet, around, 12.0F);
  Field tone = Painted(sheet, [&](Spot p) {
    const float sunk = Clamp01((around(p) - height(p)) / 7.0F);
    // The upper rim shades what lies under it.
    const float above = height.Sample(p.fx - 9.0F, p.fy - 15.0F) - height(p);
    const float shade = SmoothRamp(2.0F, 18.0F, above);
    float value = 0.70F + 0.12F * stain(p) + 0.08F * beds(p) + 0.05F * rough(p) + 0.07F * grit(p);
    value += 0.24F * depth(p);
    value += 0.24F * light(p);
    // Hardly any sky reaches the bottom of a pit.
    value *= 1.0F - 0.70F * SmoothRamp(-0.55F, -1.35F, depth(p));
    value *= 1.0F - 0.50F * sunk;
    return value * (1.0F - 0.74F * shade);
  });
  Soften(sheet, tone, 0.4F);
  StretchTo(sheet, tone, 0.002F, 0.997F);
  return tone;
}

const RegisteredTexture kSeaEatenStone(TextureRecipe{
    .name = "Sea_Eaten_Stone",
    .set = TextureSet::kQuarry,
    .effects = {"Stone/Minerals", "Erosion (Heavy)", "Texture (Heavy)"},
    .seed = 2110,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
