// Linen_Weave: unbleached table linen, washed soft, with a few set wrinkles.
//
// What makes it read as that: flax is never even, so threads swell into slubs
// that run on for an inch; a thick thread pushes its neighbours aside; single
// fibres stand out of each thread; the wrinkles bend the weave as well as
// the light.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"
#include "toolbox/weave.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Weave linen{.warpPitch = 8.6F,
                    .weftPitch = 9.4F,
                    .warpFill = 0.86F,
                    .weftFill = 0.98F,
                    .uneven = 0.34F,
                    .slub = 0.42F,
                    .slubLength = 130.0F,
                    .wander = 0.34F,
                    .crimp = 0.55F,
                    .seed = seed};
  const Warp drawn{26.0F, {520.0F, 3, 0.45F, seed + 1}};
  const Warp pulled{2.2F, {60.0F, 3, 0.55F, seed + 2}};
  const Fbm fibre{3.0F, 2, 0.7F, seed + 3};
  const Survey<Weave::Place> places(sheet, [&](Spot p) { return linen.At(pulled(drawn(p))); });

  const Fbm wrinkle{330.0F, 3, 0.45F, seed + 4};
  const Fbm slack{900.0F, 2, 0.5F, seed + 5};
  const Field bulge = Painted(sheet, [&](Spot p) {
    const float n = wrinkle(p.fx * 0.30F + p.fy * 0.4F, p.fy * 0.9F - p.fx * 0.7F);
    // Washed cloth has no sharp folds: the crest is rounded.
    const float crest = 1.0F - Sqrt(n * n + 0.006F);
    return 3.0F * slack(p) + 1.3F * crest * crest * crest * Clamp01(0.25F + 1.5F * slack(p));
  });
  const Field bend = Relief(sheet, bulge, 0.022F);
  const Field height = Painted(sheet, [&](Spot p) { return places(p).height; });
  const Field light = Relief(sheet, height, 0.55F);
  Field tone = Painted(sheet, [&](Spot p) {
    const Weave::Place& at = places(p);
    const float dye = Unit(Hash(at.thread + 5)) - 0.5F;
    const float strand = fibre(at.along * 0.16F, at.across * 5.0F + Unit(at.thread) * 300.0F);
    const float body = at.hole ? 0.04F : 0.40F + 0.36F * at.height + 0.16F * dye + 0.10F * strand;
    return body + 0.16F * light(p) + 0.30F * bend(p);
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.004F, 0.997F);
  return tone;
}

const RegisteredTexture kLinenWeave(TextureRecipe{.name = "Linen_Weave",
                                                  .set = TextureSet::kHidesAndCloth,
                                                  .effects = {"Fabrics", "Texture (Light)"},
                                                  .seed = 1001,
                                                  .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
