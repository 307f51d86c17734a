// Tidal_Ripples: a sand flat when the tide has just left. Ripples run across
// the picture, fork and die out; the last water lies in the troughs.
//
// What makes it read as that: steep on the lee side and long on the other,
// crests that branch in tuning forks, wet troughs darker and smoother than the
// dry crests, grains of sand, a few worm casts.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/grown_pattern.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  // Ripples run along y of the pattern, and the picture looks at it turned.
  const Sheet turned{sheet.height, sheet.width, seed, sheet.pool};
  const GrownPattern pattern(turned,
                             {.spacing = 98.0F, .aligned = true, .rounds = 22, .seed = seed});
  const Warp sway{52.0F, {430.0F, 3, 0.5F, seed + 5}};
  const Fbm ruffle{34.0F, 4, 0.58F, seed + 12};
  const Fbm sand{2.3F, 2, 0.75F, seed + 20};
  const Fbm coarse{7.0F, 3, 0.7F, seed + 22};
  const Fbm pools{560.0F, 4, 0.5F, seed + 30};
  const Spots shells{120.0F, 0.22F, 2.0F, 6.0F, seed + 40};

  const auto crest = [&](float x, float y) { return pattern.At(y + 0.16F * x, x); };
  Field ripple = Painted(sheet, [&](Spot p) {
    const Spot q = sway(p);
    // The crest leans over its lee side.
    return crest(q.fx, q.fy - 15.0F * crest(q.fx, q.fy));
  });
  // Water leaves no flat tops.
  Blur(sheet, ripple, 13.0F);
  const Field height = Painted(sheet, [&](Spot p) {
    const float r = ripple(p);
    const float dry = SmoothRamp(-0.35F, 0.25F, r + 0.25F * pools(p));
    return 21.0F * r + 1.6F * ruffle(p) * (0.35F + 0.65F * dry) + (0.25F + 0.45F * dry) * sand(p) +
           0.5F * dry * coarse(p) + 4.0F * Sqrt(shells(p).depth);
  });
  const Field light = Relief(sheet, height, 0.85F);
  Field tone = Painted(sheet, [&](Spot p) {
    const float r = ripple(p);
    const float wet = SmoothRamp(0.20F, -0.45F, r + 0.55F * pools(p) + 0.10F * ruffle(p));
    float value =
        0.74F + 0.06F * pools(p) + 0.05F * ruffle(p) + 0.06F * sand(p) + 0.04F * coarse(p);
    value = Mix(value, 0.52F + 0.05F * ruffle(p), 0.8F * wet);
    value += (0.36F - 0.10F * wet) * light(p);
    const Spots::Hit shell = shells(p);
    if (shell.depth > 0.0F)
      value = Mix(value, Unit(shell.hash) < 0.5F ? 0.25F : 0.95F,
                  0.7F * SmoothRamp(0.0F, 0.3F, shell.depth));
    return value;
  });
  Soften(sheet, tone, 0.4F);
  StretchTo(sheet, tone, 0.002F, 0.997F);
  return tone;
}

const RegisteredTexture kTidalRipples(TextureRecipe{
    .name = "Tidal_Ripples",
    .set = TextureSet::kQuarry,
    .effects = {"Stone/Minerals", "Erosion (Light)", "Texture (Light)", "Ephemeral"},
    .seed = 2100,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
