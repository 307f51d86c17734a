// Light_Leak: roll film from a box camera whose back no longer shut. Light came in at
// the hinge and round the red window; dark here is where the film was fogged.
//
// What makes it read as that: a fan of soft tongues from one side with one hard
// straight border, the rim of the window with the backing paper's figure in
// it, a flare that crosses the frame, and grain that grows with the fog.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/lettering.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  StrokeSet figures;
  const float wx = 0.24F * w;
  const float wy = 0.80F * h;
  AddLettering(figures,
               {.x = wx - 60.0F,
                .y = wy + 52.0F,
                .height = 104.0F,
                .narrow = 0.55F,
                .heading = -0.05F,
                .radius = 9.0F},
               "8");
  const StrokePoint dots[] = {{wx + 58.0F, wy + 40.0F, 12.0F, 1.0F}};
  figures.Add(dots);
  Field figure(sheet);
  figures.Draw(sheet, figure);
  Blur(sheet, figure, 6.0F);

  const Fbm tongues{0.34F, 2, 0.45F, seed + 1};
  const Fbm fine{0.055F, 3, 0.5F, seed + 2};
  const Fbm breath{620.0F, 3, 0.45F, seed + 3};
  const Fbm grain{2.7F, 3, 0.8F, seed + 4};
  const Fbm clump{7.0F, 3, 0.65F, seed + 5};
  Field tone = Painted(sheet, [&](Spot p) {
    // The hinge: light enters at a point beyond the right edge and fans out.
    const float dx = 1.22F * w - p.fx;
    const float dy = p.fy - 0.36F * h;
    const float far = Length(dx, dy);
    const float ux = dx / far;
    const float uy = dy / far;
    const float ray = 0.62F * tongues(ux, uy) + 0.10F * fine(ux, uy);
    const float reach = (0.60F + 0.75F * ray) * w;
    float fog = 1.25F * Exp(-Square(Max(0.0F, far - 0.22F * w) / Max(60.0F, 0.55F * reach)));
    // A straight border: the edge of the film's channel cut the light off.
    const float border = p.fy - 0.115F * h - 0.05F * p.fx;
    fog *= 0.30F + 0.70F * SmoothRamp(-10.0F, 34.0F, border);
    // A second, thinner one through the crack along the top.
    fog += 0.55F * Exp(-Max(0.0F, p.fy + 60.0F * breath(p.fx, 0.0F)) / 55.0F) *
           Clamp01(0.5F + 1.4F * breath(p.fx * 0.8F, 900.0F));
    // The red window.
    const float off = Length(p.fx - wx, 1.04F * (p.fy - wy));
    const float disc = SmoothRamp(190.0F, 128.0F, off) * 0.46F + 0.20F * Exp(-off / 260.0F);
    fog += disc * (1.0F - 0.85F * figure(p)) * (0.9F + 0.4F * breath(p));
    // A band across the frame where the film lay while it was wound.
    const float slant = (p.fx - 0.47F * w) * 0.93F + (p.fy - 0.5F * h) * 0.36F;
    const float band = Exp(-Square(slant / 150.0F)) + 0.5F * Exp(-Square((slant - 90.0F) / 34.0F));
    fog += 0.30F * band * Clamp01(0.55F + 1.1F * breath(p));
    const float clear = Exp(-1.5F * fog);
    const float dim = clear * (1.0F - clear);
    return clear + (0.10F + 0.62F * dim) * (0.55F * grain(p) + 0.30F * clump(p)) * 0.6F;
  });
  Soften(sheet, tone, 0.4F);
  StretchTo(sheet, tone, 0.004F, 0.93F);
  return tone;
}

const RegisteredTexture kLightLeak(TextureRecipe{.name = "Light_Leak",
                                                 .set = TextureSet::kDarkroom,
                                                 .effects = {"Ephemeral", "Distress (Light)"},
                                                 .seed = 1034,
                                                 .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
