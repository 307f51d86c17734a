// Worn_Edges: a frame of wear. The picture is left alone in the middle; from
// the border in it has been rubbed, chipped and knocked away, most at the
// corners, as on a sign or a poster that was handled for years.
//
// What makes it read as that: a coast with bays and islands instead of a fade,
// chips with straight breaks at the rim, scratches that run in from it, flecks
// that get smaller and rarer inwards.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/scratches.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float tall = static_cast<float>(sheet.height);
  const Warp torn{22.0F, {70.0F, 4, 0.58F, seed}};
  const Fbm bays{330.0F, 4, 0.52F, seed + 6};
  const Fbm coast{90.0F, 6, 0.62F, seed + 12};
  const Fbm grit{7.0F, 4, 0.70F, seed + 20};
  const Cells chips{74.0F, 1.0F, seed + 32};
  const Spots flecks{17.0F, 0.75F, 0.8F, 6.5F, seed + 36};
  const Spots specks{7.0F, 0.55F, 0.5F, 2.2F, seed + 37};

  StrokeSet marks;
  Dice dice(seed + 40);
  const int count = FloorInt(150.0F * (width + tall) / 3584.0F);
  for (int i = 0; i < count; ++i) {
    // From somewhere near the rim, inwards or along.
    Walk walk;
    const bool upright = dice.Chance(0.45F);
    const float deep = Square(dice.Unit()) * 0.17F;
    const bool far = dice.Chance(0.5F);
    const float at = dice.Unit();
    walk.x = (upright ? (far ? 1.0F - deep : deep) : at) * width;
    walk.y = (upright ? at : (far ? 1.0F - deep : deep)) * tall;
    walk.length = dice.Between(30.0F, 330.0F);
    walk.heading = dice.Around(upright ? 0.25F * kTau : 0.0F, 0.55F);
    walk.wobble = 0.35F;
    walk.radius = dice.Between(0.5F, 1.9F);
    walk.strength = dice.Between(0.35F, 1.0F);
    walk.skip = 1.1F;
    walk.seed = dice.Word();
    AddWalk(marks, walk);
  }
  AddScuffs(marks, sheet,
            {.count = 9,
             .minLength = 40.0F,
             .maxLength = 200.0F,
             .heading = 0.4F,
             .spread = 0.8F,
             .stray = 0.5F,
             .minLines = 10,
             .maxLines = 46,
             .minStrength = 0.15F,
             .maxStrength = 0.5F},
            seed + 41);
  Field mark(sheet);
  marks.Draw(sheet, mark, {.ragged = 0.7F, .raggedPeriod = 3.5F, .seed = seed + 42});

  const Field grain = Painted(sheet, [&](Spot p) { return grit(p); });
  Field tone = Painted(sheet, [&](Spot p) {
    const Spot q = torn(p);
    const float dx = Min(p.fx, width - 1.0F - p.fx);
    const float dy = Min(p.fy, tall - 1.0F - p.fy);
    const float side = Min(dx, dy) / tall;
    const float corner = Length(dx, dy) / tall;
    // 1 at the rim to below 0 inside; corners suffered from two sides.
    const float near =
        0.62F * Exp(-side / 0.050F) + 0.36F * Exp(-side / 0.16F) + 0.45F * Exp(-corner / 0.12F);
    const CellSample chip = chips(q.fx, q.fy);
    const float bay = bays(p);
    const float rough = coast(q);
    const float worn = near * (1.0F + 0.9F * bay) + 0.34F * rough +
                       0.14F * (chip.id - 0.5F) * near + 0.11F * grain(p);
    float gone = SoftThreshold(worn, 0.47F, 0.045F);
    // A rubbed margin before it is gone: only the tops of the grain are bare.
    const float rubbed = SmoothRamp(0.20F, 0.52F, worn);
    gone = Max(gone, 0.85F * rubbed * SmoothRamp(0.02F, 0.30F, grain(p) - 0.45F + 0.62F * rubbed));
    const float reach = near + 0.30F * bay;
    const float fleck =
        SmoothRamp(0.04F, 0.22F, flecks(q).depth) * SmoothRamp(0.10F, 0.34F, reach + 0.2F * rough);
    const float speck = SmoothRamp(0.0F, 0.3F, specks(p).depth) *
                        SmoothRamp(0.03F, 0.40F, reach + 0.25F * rough) * 0.8F;
    const float line =
        mark(p) * SmoothRamp(0.02F, 0.22F, near + 0.1F * bay) * (0.75F + 0.5F * grain(p));
    return 1.0F - Clamp01(Max(Max(gone, fleck), Max(speck, line)));
  });
  Soften(sheet, tone, 0.45F);
  // The middle is to leave the picture wholly alone: no trace of a speck's rim.
  Repaint(sheet, tone, [&](Spot p) { return Ramp(0.03F, 0.97F, tone(p)); });
  return tone;
}

const RegisteredTexture kWornEdges(TextureRecipe{
    .name = "Worn_Edges",
    .set = TextureSet::kEssentials,
    .effects = {"Distress (Heavy)", "Erosion (Heavy)", "Weathered/Aged"},
    .seed = 2280,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
