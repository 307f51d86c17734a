// Artists_Canvas: cotton duck stretched and primed twice with a broad brush.
//
// What makes it read as that: the primer fills the weave in one place and
// leaves it open in the next, ridges of the brush cross at right angles, knots
// stand through, and the weave draws towards tacks along the rim.
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
  const float h = static_cast<float>(sheet.height);
  const Weave duck{.warpPitch = 14.5F,
                   .weftPitch = 13.0F,
                   .warpFill = 0.96F,
                   .weftFill = 1.0F,
                   .uneven = 0.24F,
                   .slub = 0.30F,
                   .slubLength = 70.0F,
                   .wander = 0.26F,
                   .crimp = 0.8F,
                   .seed = seed};
  const Warp drawn{4.0F, {300.0F, 3, 0.5F, seed + 1}};
  // Cusps: the cloth was pulled to each tack and stayed behind between them.
  const auto cusped = [&](Spot p) {
    const float pull = Cos(p.fx * (kTau / 236.0F) + 1.5F * LineNoise(p.fx / 400.0F, seed + 20));
    const float reach = Exp(-p.fy / 130.0F) - Exp(-(h - p.fy) / 130.0F);
    p.fy += 22.0F * pull * reach;
    return p;
  };
  Field height = Painted(sheet, [&](Spot p) { return duck.At(drawn(cusped(p))).height; });
  Blur(sheet, height, 1.6F);

  const Fbm load{240.0F, 4, 0.55F, seed + 3};
  const Fbm across{17.0F, 4, 0.62F, seed + 4};
  const Fbm down{17.0F, 4, 0.62F, seed + 5};
  const Fbm sweep{600.0F, 3, 0.5F, seed + 6};
  const Fbm grit{3.0F, 2, 0.6F, seed + 7};
  Field primed = Painted(sheet, [&](Spot p) {
    const float bend = 30.0F * sweep(p);
    const float first = across(p.fx * 0.025F, p.fy + bend);
    const float last = down(p.fx + bend, p.fy * 0.028F);
    const float filled = SoftThreshold(load(p) + 0.25F * last, 0.10F, 0.7F);
    return Mix(height(p), 0.62F + 0.22F * height(p), 0.78F * filled) +
           (0.26F + 0.20F * filled) * last + 0.20F * first + 0.03F * grit(p);
  });
  const Field light = Relief(sheet, primed, 0.20F);
  Field low = primed;
  Blur(sheet, low, 9.0F);
  Field tone = Painted(sheet, [&](Spot p) {
    return 0.70F + 0.26F * (primed(p) - low(p)) + 0.34F * light(p) + 0.07F * load(p);
  });
  StretchTo(sheet, tone, 0.003F, 0.985F);
  Repaint(sheet, tone, [&](Spot p) { return Levels{.gamma = 1.6F}(Clamp01(tone(p))); });
  return tone;
}

const RegisteredTexture kArtistsCanvas(TextureRecipe{.name = "Artists_Canvas",
                                                     .set = TextureSet::kEssentials,
                                                     .effects = {"Fabrics", "Texture (Medium)"},
                                                     .seed = 1004,
                                                     .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
