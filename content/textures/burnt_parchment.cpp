// Burnt_Parchment: a deed that was pulled out of a fire. The middle is whole and
// nearly white; towards the rim it is scorched, then charred, then gone.
//
// What makes it read as that: fire eats in bays; colour goes from tan to black
// within a finger's breadth of the edge and hangs on in a soft smoke beyond;
// char is crazed and grey with ash right on its rim; a few sparks burnt holes.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  const Fbm bays{430.0F, 3, 0.5F, seed + 1};
  const Fbm bites{110.0F, 4, 0.58F, seed + 2};
  const Spots sparks{300.0F, 0.30F, 5.0F, 46.0F, seed + 3};
  const Warp eaten{16.0F, {44.0F, 3, 0.6F, seed + 4}};
  // Pixels from the edge of what is left, inwards.
  const Field inside = Painted(sheet, [&](Spot p) {
    const float toSide = Min(p.fx, w - p.fx);
    const float toEnd = Min(p.fy, h - p.fy);
    // Corners burn from two sides.
    const float both = Length(Max(0.0F, 260.0F - toSide), Max(0.0F, 260.0F - toEnd));
    const float rim = Min(Min(toSide, toEnd), 260.0F - both + 20.0F);
    const float deep = 120.0F * bays(p) + 46.0F * bites(p);
    const float lowRight = 70.0F * SmoothRamp(0.7F, 1.7F, p.fx / w + p.fy / h);
    float left = rim - 74.0F - deep - lowRight;
    const float near = SmoothRamp(420.0F, 60.0F, left);
    const Spots::Hit spark = near > 0.0F ? sparks(eaten(p)) : Spots::Hit{};
    if (spark.depth > 0.0F) {
      left = Min(left, (1.0F - spark.depth) * spark.radius * 2.2F - spark.radius * near);
    }
    return left;
  });
  const Fbm smokeNoise{150.0F, 4, 0.56F, seed + 5};
  const Field smoke = Painted(sheet, smokeNoise);
  const Fbm fineNoise{13.0F, 4, 0.62F, seed + 6};
  const Field fine = Painted(sheet, fineNoise);
  const Fbm vein{240.0F, 4, 0.55F, seed + 7};
  const Fbm grain{4.0F, 3, 0.7F, seed + 8};
  const Cells crazing{17.0F, 1.0F, seed + 9};
  const Warp crooked{5.0F, {14.0F, 3, 0.6F, seed + 10}};
  const Field height = Painted(sheet, [&](Spot p) {
    const float left = inside(p);
    if (left < -6.0F) return 0.0F;
    const float charred = SmoothRamp(46.0F, 10.0F, left);
    float plate = 1.0F;
    if (charred > 0.0F) {
      const Spot q = crooked(p);
      plate = SmoothRamp(0.0F, 0.20F, crazing.WithEdge(q.fx, q.fy).edge);
    }
    return SmoothRamp(-3.0F, 5.0F, left) + 0.5F * charred * plate + 0.9F * Exp(-left / 40.0F) +
           0.10F * fine(p);
  });
  const Field light = Relief(sheet, height, 0.14F);
  Field tone = Painted(sheet, [&](Spot p) {
    const float left = inside(p);
    const float wander = left + 16.0F * fine(p) + 34.0F * smoke(p);
    const float scorch = 1.0F - 0.50F * Exp(-Max(0.0F, left + 70.0F * smoke(p)) / 120.0F) -
                         0.12F * Exp(-Max(0.0F, left) / 420.0F);
    const float veins = 0.07F * SmoothRamp(0.10F, 0.0F, Abs(vein(p.fx * 1.4F, p.fy))) +
                        0.07F * vein(p) + 0.05F * grain(p);
    float value = (0.99F - veins) * scorch;
    value *= Mix(0.10F, 1.0F, SmoothRamp(4.0F, 74.0F, wander));
    value += 0.20F * light(p) * (0.35F + 0.65F * SmoothRamp(120.0F, 20.0F, left));
    // Ash clings to the very rim.
    value += (0.42F + 0.35F * fine(p)) * Exp(-Square((left - 3.5F) / 3.4F));
    return value * SmoothRamp(-1.5F, 1.5F, left + 1.5F * grain(p));
  });
  Soften(sheet, tone, 0.3F);
  StretchTo(sheet, tone, 0.002F, 0.97F);
  return tone;
}

const RegisteredTexture kBurntParchment(TextureRecipe{
    .name = "Burnt_Parchment",
    .set = TextureSet::kPaperDrawer,
    .effects = {"Papers", "Distress (Heavy)", "Erosion (Medium)"},
    .seed = 1014,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
