// Machine_Paint: the flank of a lathe, painted thick every ten years. The last
// coat cracked like dry mud and curls off in plates; below it an older and
// darker coat, below that filler and bare iron; hands polished the rest.
//
// What makes it read as that: plates of one size that stand up at their rims,
// losses that take whole plates, coats in clear steps, a gloss on all of it.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/peel.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

struct Plate {
  float edge;  // pixels from the crack about it
  float dx, dy;
  float own, other;
};

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  const Warp crooked{12.0F, {44.0F, 4, 0.58F, seed + 1}};
  const Warp drawn{50.0F, {300.0F, 2, 0.5F, seed + 2}};
  const Cells cells{76.0F, 1.0F, seed + 3};
  const Survey<Plate> plates(sheet, [&](Spot p) {
    const Spot q = crooked(drawn(p));
    const CellSample cell = cells.WithEdge(q.fx, q.fy);
    return Plate{cell.edge * cells.period, cell.dx, cell.dy, cell.id, Unit(Hash(cell.hash + 1))};
  });
  const Fbm weather{360.0F, 5, 0.56F, seed + 10};
  const Field nibble = Painted(sheet, Fbm{24.0F, 4, 0.62F, seed + 11});
  // Knocked about most along the lower edge and in one corner.
  const Field wear = Painted(sheet, [&](Spot p) {
    return 0.75F * SmoothRamp(0.55F, 1.05F, p.fy / height) +
           0.55F * SmoothRamp(0.55F, 0.0F, Length(p.fx / width - 0.95F, p.fy / height - 0.1F)) +
           1.15F * weather(p);
  });
  const Field loss = Painted(sheet, [&](Spot p) {
    const Plate& at = plates(p);
    return wear(p) + 0.62F * (at.own - 0.5F) + 0.12F * SmoothRamp(9.0F, 0.0F, at.edge) +
           0.08F * nibble(p);
  });
  const Field deep = Painted(sheet, [&](Spot p) {
    return wear(p) + 0.34F * nibble(p) + 0.15F * (plates(p).other - 0.5F);
  });
  const PeelingCoat top =
      Peel(sheet, loss, {.at = 0.42F, .softness = 0.03F, .curl = 9.0F, .thickness = 7.0F});
  const PeelingCoat older =
      Peel(sheet, deep, {.at = 0.66F, .softness = 0.03F, .curl = 4.0F, .thickness = 3.0F});

  const Fbm brush{9.0F, 3, 0.6F, seed + 20};
  const Field grit = Painted(sheet, Fbm{4.5F, 3, 0.7F, seed + 21});
  const Field cloud = Painted(sheet, Fbm{240.0F, 5, 0.58F, seed + 22});
  const Fbm open{90.0F, 3, 0.55F, seed + 23};
  const Field crack = Painted(sheet, [&](Spot p) {
    const float tired = SmoothRamp(-0.52F, 0.15F, wear(p) + 0.25F * open(p));
    const float wide = 0.8F + 2.4F * tired + 1.2F * open(p);
    return tired * SmoothRamp(wide + 1.2F, 0.4F * wide, plates(p).edge) * top.cover(p);
  });
  const Field relief = Painted(sheet, [&](Spot p) {
    const Plate& at = plates(p);
    const float tired = SmoothRamp(-0.40F, 0.35F, wear(p));
    // A plate dries hollow: its rims rise, and it leans a little.
    const float cup = tired * (5.5F * SmoothRamp(30.0F, 2.0F, at.edge) +
                               5.0F * (at.own - 0.5F) * at.dx + 5.0F * (at.other - 0.5F) * at.dy);
    const float coat = top.cover(p);
    return coat * (4.0F + cup) + 2.5F * older.cover(p) + 3.0F * top.lift(p) +
           0.5F * brush(p.fx * 0.25F, p.fy) * (0.3F + 0.7F * coat) +
           (1.0F - older.cover(p)) * 0.55F * grit(p) - 3.0F * crack(p);
  });
  const Field light = Relief(sheet, relief, 0.45F);
  Field tone = Painted(sheet, [&](Spot p) {
    const float paint = 0.78F + 0.12F * cloud(p) + 0.03F * brush(p.fx * 0.25F, p.fy) +
                        0.05F * (plates(p).other - 0.5F);
    const float under = 0.47F + 0.10F * cloud(p) + 0.05F * nibble(p);
    const float iron = 0.20F + 0.09F * nibble(p) + 0.09F * grit(p) + 0.08F * cloud(p);
    float value = Mix(Mix(iron, under, older.cover(p)), paint, top.cover(p));
    value *= 1.0F - 0.62F * top.shadow(p) - 0.3F * older.shadow(p) * (1.0F - top.cover(p));
    value += 0.30F * light(p);
    return value * (1.0F - 0.85F * crack(p));
  });
  Soften(sheet, tone, 0.45F);
  StretchTo(sheet, tone, 0.004F, 0.995F);
  return tone;
}

const RegisteredTexture kMachinePaint(TextureRecipe{
    .name = "Machine_Paint",
    .set = TextureSet::kWallsAndSigns,
    .effects = {"Industrial", "Distress (Heavy)", "Texture (Heavy)", "Erosion (Medium)"},
    .seed = 3041,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
