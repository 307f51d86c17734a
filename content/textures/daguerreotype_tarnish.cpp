// Daguerreotype_Tarnish: a silvered plate that air has reached below its brass mat.
//
// What makes it read as that: tarnish follows the arched window of the mat in
// bands, like oil on water, dark at the rim and thinner inwards; measles, each
// with a pale halo; hair lines of the buff and of a cloth that should never
// have touched it. Its middle is bare.
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
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  StrokeSet wipes;
  AddScuffs(wipes, sheet,
            {.count = 26,
             .minLength = 120.0F,
             .maxLength = 520.0F,
             .heading = -0.35F,
             .spread = 0.25F,
             .stray = 0.3F,
             .minLines = 8,
             .maxLines = 50,
             .minStrength = 0.1F,
             .maxStrength = 0.55F},
            seed + 1);
  AddScratches(wipes, sheet,
               {.count = 26,
                .minLength = 80.0F,
                .maxLength = 900.0F,
                .stray = 0.8F,
                .minRadius = 0.3F,
                .maxRadius = 0.9F,
                .minStrength = 0.2F,
                .maxStrength = 0.8F},
               seed + 2);
  Field wipe(sheet);
  wipes.Draw(sheet, wipe, {.ragged = 0.3F, .raggedPeriod = 4.0F, .seed = seed + 3});

  // The window of the mat: an upright arch would not fit a picture that may be
  // either way, so its four corners are rounded, two of them more.
  const auto window = [&](Spot p) {
    const float x = Abs(p.fx - 0.5F * w);
    const float y = p.fy - 0.5F * h;
    const float round = y < 0.0F ? 0.42F * h : 0.16F * h;
    const float dx = x - (0.5F * w - 96.0F - round);
    const float dy = Abs(y) - (0.5F * h - 84.0F - round);
    const float outside = Length(Max(dx, 0.0F), Max(dy, 0.0F));
    return round - outside - Min(0.0F, Max(dx, dy));
  };
  const Fbm creep{520.0F, 4, 0.52F, seed + 4};
  const Fbm crawl{130.0F, 4, 0.56F, seed + 5};
  const Fbm fine{18.0F, 4, 0.6F, seed + 6};
  const Fbm grain{3.6F, 3, 0.7F, seed + 7};
  const Spots measles{84.0F, 0.34F, 2.0F, 26.0F, seed + 8};
  const Spots specks{26.0F, 0.24F, 0.8F, 3.4F, seed + 9};
  const Warp uneven{5.0F, {18.0F, 3, 0.6F, seed + 10}};
  const Curve bands{{0.0F, 0.06F},  {0.16F, 0.24F}, {0.24F, 0.60F}, {0.33F, 0.34F},
                    {0.46F, 0.80F}, {0.58F, 0.66F}, {0.75F, 0.95F}, {1.0F, 1.0F}};
  Field tone = Painted(sheet, [&](Spot p) {
    const float in = window(p);
    const float air = 1.0F + 1.5F * creep(p);
    const float at = (in / Max(0.35F, air) + 46.0F * crawl(p) + 5.0F * fine(p)) / 400.0F;
    float value = bands(Clamp01(at));
    const Spot q = uneven(p);
    const Spots::Hit spot = measles(q);
    if (spot.depth > 0.0F) {
      const float far = 1.0F - spot.depth;
      const float core = SmoothRamp(0.42F, 0.30F, far);
      const float ring = 0.5F * Exp(-Square((far - 0.62F) / 0.10F));
      value *= 1.0F - 0.80F * core - 0.5F * ring * SmoothRamp(5.0F, 12.0F, spot.radius);
    }
    value *= 1.0F - 0.75F * SmoothRamp(0.1F, 0.6F, specks(q).depth);
    value = Mix(value, value < 0.5F ? 0.72F : 0.45F, 0.55F * wipe(p));
    value += 0.05F * grain(p) + 0.05F * fine(p);
    // Under the mat: dull, with its burr pressed into the plate.
    const float under = 0.15F + 0.10F * crawl(p) + 0.04F * fine(p) + 0.30F * Clamp01(creep(p));
    const float burr = Exp(-Square((in + 2.0F) / 2.4F));
    return Mix(under, value, SmoothRamp(-3.0F, 2.0F, in)) + 0.34F * burr * (0.7F + fine(p));
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.003F, 0.93F);
  return tone;
}

const RegisteredTexture kDaguerreotypeTarnish(TextureRecipe{
    .name = "Daguerreotype_Tarnish",
    .set = TextureSet::kDarkroom,
    .effects = {"Weathered/Aged", "Erosion (Light)", "Metals"},
    .seed = 1031,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
