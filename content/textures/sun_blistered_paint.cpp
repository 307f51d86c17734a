// Sun_Blistered_Paint: a south door under thick gloss paint. The sun drew it up
// in blisters, the blisters broke and curled, and between them it shrank into
// small plates.
//
// What makes it read as that: domes of every size with a hard glint, broken
// ones with a curled rim and the bare ground inside, crazing that opens towards
// the broken places.
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/packing.h"
#include "toolbox/peel.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const std::vector<Piece> blisters = Packed(
      sheet, {.maxRadius = 66.0F, .minRadius = 6.0F, .gap = 1.5F, .effort = 2.6F, .sizes = 11},
      seed);
  const Fbm heat{480.0F, 4, 0.52F, seed + 10};
  const Fbm edge{20.0F, 4, 0.62F, seed + 14};
  const Fbm bulge{60.0F, 2, 0.4F, seed + 18};
  const Fbm fine{3.0F, 2, 0.7F, seed + 20};
  const Fbm brush{6.0F, 3, 0.6F, seed + 24};
  const Fbm fibre{4.0F, 3, 0.7F, seed + 28};
  const Fbm fade{300.0F, 5, 0.55F, seed + 32};
  const Cells plates{58.0F, 1.0F, seed + 38};
  const Warp crooked{9.0F, {30.0F, 3, 0.6F, seed + 40}};

  const Field hot = Painted(sheet, [&](Spot p) { return heat(p); });
  const Field nick = Painted(sheet, [&](Spot p) { return edge(p); });
  const Field swell = Painted(sheet, [&](Spot p) { return bulge(p); });
  Field dome(sheet);
  Field broken(sheet);
  ForPieces(sheet, blisters, 1.15F, [&](const Piece& blister, Spot p, float dx, float dy) {
    // One state for the whole blister, by the heat at its middle.
    const float h = heat(blister.x, blister.y) + 0.55F * (Unit(blister.hash) - 0.5F);
    if (h < -0.10F) return;
    const float lean = 0.75F + 0.5F * Unit(Hash(blister.hash + 1));
    const float r = Length(dx * lean, dy / lean) + 0.22F * swell(p);
    if (r >= 1.0F) return;
    float* rise = dome.Row(p.y) + p.x;
    const float high = (1.0F - r * r) * (1.0F - 0.35F * r * r) * blister.radius * 0.34F;
    if (high > *rise) *rise = high;
    // Small ones are tough: they rarely break.
    if (h < 0.16F + (blister.radius < 18.0F ? 0.35F : 0.0F)) return;
    const float open = 0.55F + 0.40F * SmoothRamp(0.16F, 0.45F, h);
    const float hole = SmoothRamp(open + 0.03F, open - 0.03F, r + 0.12F * nick(p));
    float* gone = broken.Row(p.y) + p.x;
    if (hole > *gone) *gone = hole;
  });
  // Whole sheets are gone where it was hottest.
  const Field loss = Painted(sheet, [&](Spot p) {
    const Spot q = crooked(p);
    const CellSample plate = plates(q.fx, q.fy);
    return Max(broken(p),
               SoftThreshold(hot(p) + 0.26F * (plate.id - 0.5F) + 0.10F * nick(p), 0.42F, 0.04F));
  });
  const PeelingCoat coat =
      Peel(sheet, loss, {.at = 0.5F, .softness = 0.3F, .curl = 5.0F, .thickness = 4.0F});
  const Field craze = Painted(sheet, [&](Spot p) {
    const float tired = SmoothRamp(-0.30F, 0.30F, hot(p));
    if (tired <= 0.0F) return 0.0F;
    const Spot q = crooked(p);
    const float wide = 0.5F + 2.4F * tired + 1.4F * nick(p);
    return tired * SmoothRamp(wide + 0.8F, wide - 0.8F, plates.WithEdge(q.fx, q.fy).edge * 58.0F);
  });
  const Field wood = Painted(sheet, [&](Spot p) {
    return fibre(p.fx, p.fy * 0.03F) + 0.6F * brush(p.fx * 0.5F, p.fy * 0.02F);
  });
  const Field height = Painted(sheet, [&](Spot p) {
    const float paint = dome(p) + 2.4F + 2.0F * coat.lift(p) + 0.22F * brush(p.fx, p.fy * 0.05F) +
                        0.10F * fine(p) - 2.0F * craze(p);
    return Mix(0.9F * wood(p), paint, coat.cover(p));
  });
  const Field light = Relief(sheet, height, 0.70F);
  Field tone = Painted(sheet, [&](Spot p) {
    float paint = 0.66F + 0.10F * fade(p) + 0.02F * fine(p) + 0.38F * light(p);
    // Gloss: a hard glint where the slope faces the light.
    paint += 0.24F * SmoothRamp(0.44F, 0.70F, light(p));
    paint *= 1.0F - 0.75F * craze(p);
    float bare = 0.27F + 0.11F * wood(p) + 0.08F * fade(p) + 0.20F * light(p);
    bare *= 1.0F - 0.60F * coat.shadow(p);
    return Mix(bare, paint, coat.cover(p));
  });
  Soften(sheet, tone, 0.45F);
  StretchTo(sheet, tone, 0.002F, 0.996F);
  return tone;
}

const RegisteredTexture kSunBlisteredPaint(TextureRecipe{
    .name = "Sun_Blistered_Paint",
    .set = TextureSet::kWallsAndSigns,
    .effects = {"Distress (Heavy)", "Texture (Heavy)", "Weathered/Aged"},
    .seed = 2140,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
