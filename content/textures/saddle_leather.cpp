// Saddle_Leather: the flap of an old saddle. Full grain, so every pebble has
// another size; bent so often that wrinkles run through it, polished on the
// high places by legs, scratched by straps.
//
// What makes it read as that: pebbles that flow along the wrinkles instead of
// lying anyhow, valleys of even depth between them, hair pores, shine on top
// of the swellings only.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/scratches.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Fbm swell{300.0F, 3, 0.45F, seed};
  const Warp flow{16.0F, {190.0F, 2, 0.4F, seed + 1}};
  const Warp crooked{2.0F, {16.0F, 2, 0.5F, seed + 3}};
  const Cells pebbles{19.0F, 0.9F, seed + 5};
  const Cells grains{8.5F, 1.0F, seed + 6};
  const Fbm wrinkle{150.0F, 4, 0.5F, seed + 7};
  const Fbm where{420.0F, 3, 0.5F, seed + 8};
  const Fbm skin{2.6F, 2, 0.7F, seed + 9};
  const Spots pores{17.0F, 0.30F, 0.8F, 2.0F, seed + 10};

  StrokeSet marks;
  AddScratches(marks, sheet,
               {.count = 70,
                .minLength = 40.0F,
                .maxLength = 700.0F,
                .heading = 0.9F,
                .spread = 0.5F,
                .stray = 0.4F,
                .minRadius = 0.5F,
                .maxRadius = 1.7F,
                .minStrength = 0.25F,
                .maxStrength = 0.9F,
                .skip = 1.1F,
                .companions = 2},
               seed + 20);
  AddScuffs(marks, sheet,
            {.count = 10,
             .minLength = 60.0F,
             .maxLength = 260.0F,
             .heading = 0.9F,
             .spread = 0.6F,
             .stray = 0.3F,
             .minLines = 12,
             .maxLines = 60,
             .minRadius = 0.3F,
             .maxRadius = 0.8F,
             .minStrength = 0.2F,
             .maxStrength = 0.7F},
            seed + 21);
  Field mark(sheet);
  marks.Draw(sheet, mark, {.profile = StrokeProfile::kVee, .ragged = 0.5F, .seed = seed + 22});

  // Wrinkles: thin valleys where warped noise passes zero, in bent places only.
  const Field fold = Painted(sheet, [&](Spot p) {
    const Spot q = flow(p);
    const float line = 1.0F - Abs(wrinkle(q.fx * 0.55F + q.fy * 0.35F, q.fy * 0.9F));
    const float bent = SoftThreshold(where(p), 0.05F, 0.6F);
    return bent * SmoothRamp(0.86F, 1.0F, line);
  });
  const Field height = Painted(sheet, [&](Spot p) {
    const Spot q = crooked(flow(p));
    // Squeezed across the wrinkles, drawn out along them.
    const CellSample pebble = pebbles.WithEdge(q.fx * 0.97F + q.fy * 0.12F, q.fy * 1.06F);
    const CellSample grain = grains.WithEdge(q.fx, q.fy);
    const float dome = Sqrt(SmoothRamp(0.0F, 0.42F, pebble.edge));
    const float small = SmoothRamp(0.0F, 0.28F, grain.edge);
    const float size = 0.65F + 0.35F * pebble.id;
    return 0.9F * swell(p) + size * 0.50F * dome + 0.12F * small * dome - 0.42F * fold(p) +
           0.05F * skin(p) - 0.45F * SmoothRamp(0.0F, 0.5F, pores(p).depth) - 0.35F * mark(p);
  });
  const Field light = Relief(sheet, height, 0.16F);

  Field broad = height;
  Blur(sheet, broad, 24.0F);
  const Fbm dye{260.0F, 5, 0.55F, seed + 30};
  Field tone = Painted(sheet, [&](Spot p) {
    const float above = height(p) - broad(p);
    const float worn = SoftThreshold(where(p) * -0.6F + 0.7F * swell(p), 0.22F, 0.7F);
    float value = 0.40F + 0.12F * dye(p) + 0.46F * above;
    value += 0.26F * light(p);
    value += 0.30F * worn * SmoothRamp(0.05F, 0.32F, above);
    return value + 0.14F * mark(p) - 0.05F * fold(p);
  });
  StretchTo(sheet, tone, 0.002F, 0.997F);
  return tone;
}

const RegisteredTexture kSaddleLeather(TextureRecipe{
    .name = "Saddle_Leather",
    .set = TextureSet::kHidesAndCloth,
    .effects = {"Leather", "Texture (Medium)", "Animal Patterns"},
    .seed = 74,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
