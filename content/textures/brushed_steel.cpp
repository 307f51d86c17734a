// Brushed_Steel: a lift door of brushed steel after some years of service.
// The belt left hair lines the whole way across, in bundles; trolleys added
// deeper scratches low down, and hands a dull cloud.
//
// What makes it read as that: lines that begin and end nowhere near one
// another, soft bands of reflected room across them, marks of use that break
// the direction.
#include "builder/texture_recipe.h"
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
  const float height = static_cast<float>(sheet.height);

  const Fbm hair{2.0F, 2, 0.8F, seed + 1};
  const Fbm lines{5.0F, 2, 0.7F, seed + 2};
  const Fbm bundle{26.0F, 3, 0.6F, seed + 3};
  const Fbm slant{700.0F, 2, 0.5F, seed + 4};
  const Field brushed = Painted(sheet, [&](Spot p) {
    const float y = p.fy + 5.0F * slant(p) + 0.006F * p.fx;
    return 0.55F * hair(p.fx * 0.0075F, y) + 0.45F * lines(p.fx * 0.006F, y) +
           0.40F * bundle(p.fx * 0.02F, y);
  });

  StrokeSet bright;
  StrokeSet dark;
  AddScratches(bright, sheet,
               {.count = 210,
                .minLength = 60.0F,
                .maxLength = 900.0F,
                .spread = 0.02F,
                .stray = 0.06F,
                .minRadius = 0.3F,
                .maxRadius = 0.9F},
               seed + 10);
  AddScratches(dark, sheet,
               {.count = 240,
                .minLength = 40.0F,
                .maxLength = 700.0F,
                .spread = 0.02F,
                .stray = 0.10F,
                .minRadius = 0.3F,
                .maxRadius = 1.1F},
               seed + 11);
  AddScuffs(dark, sheet, {.count = 12, .heading = 0.5F, .spread = 0.9F, .slender = 0.6F},
            seed + 12);
  Field up(sheet);
  Field down(sheet);
  bright.Draw(sheet, up);
  dark.Draw(sheet, down);
  // Trolleys reach up to a third of the height.
  const Fbm hands{300.0F, 5, 0.58F, seed + 20};
  const Fbm smear{90.0F, 4, 0.6F, seed + 21};
  const Fbm room{520.0F, 2, 0.45F, seed + 22};
  Field tone = Painted(sheet, [&](Spot p) {
    const float low = p.fy / height;
    const float used = 0.35F + 0.65F * SmoothRamp(0.45F, 0.95F, low);
    const float dull = SoftThreshold(
        hands(p.fx, p.fy * 0.8F) + 0.35F * smear(p) - 0.8F * Square(low - 0.42F) * 4.0F, 0.12F,
        0.55F);
    // The room, drawn out upwards and downwards by the lines.
    const float sky =
        room(p.fx * 0.9F, p.fy * 0.16F) + 0.16F * room(p.fx * 1.9F + 400.0F, p.fy * 0.1F);
    float value = 0.60F + 0.34F * sky + (0.34F - 0.16F * dull) * brushed(p);
    value = Mix(value, 0.52F + 0.20F * brushed(p), 0.38F * dull);
    value += 0.42F * used * up(p) - 0.50F * used * down(p);
    const float side = Min(p.fx, width - p.fx) / width;
    return value - 0.16F * SmoothRamp(0.10F, 0.0F, side);
  });
  StretchTo(sheet, tone, 0.003F, 0.996F);
  return tone;
}

const RegisteredTexture kBrushedSteel(TextureRecipe{
    .name = "Brushed_Steel",
    .set = TextureSet::kForge,
    .effects = {"Metals", "Industrial", "Texture (Light)", "Scratches"},
    .seed = 3010,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
