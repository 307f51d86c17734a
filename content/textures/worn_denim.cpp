// Worn_Denim: the leg of a pair of work trousers: twill bleached to threads over
// the knee, a felled seam with its two rows of stitching, whiskers of wear.
//
// What makes it read as that: the steep diagonal of the twill; indigo goes from
// the high places first, so that every crease and the roping along the seam
// are pale on top; the white weft comes through where it is worn most.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"
#include "toolbox/weave.h"

namespace tarnwick::content {
namespace {

// Pixels to the right of the seam's middle.
float FromSeam(const Sheet& sheet, Spot p) {
  return p.fx - 0.70F * static_cast<float>(sheet.width) - 0.10F * p.fy +
         0.05F * static_cast<float>(sheet.height) +
         16.0F * LineNoise(p.fy / 500.0F, sheet.seed + 30);
}

// A row of stitches: 0 none, 1 the top of a thread.
float Stitch(float across, float along, std::uint32_t seed) {
  constexpr float kStep = 34.0F;
  const int index = FloorInt(along / kStep);
  const float t = along - static_cast<float>(index) * kStep - 0.5F * kStep;
  const float tilt = across - 0.09F * t - 1.2F * (Unit(HashAt(index, 0, seed)) - 0.5F);
  const float d = Square(tilt / 4.2F) + Square(t / 14.5F);
  return d >= 1.0F ? 0.0F : Sqrt(1.0F - d);
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  const Weave twill{.warpPitch = 7.4F,
                    .weftPitch = 8.6F,
                    .warpFill = 1.06F,
                    .weftFill = 0.9F,
                    .uneven = 0.30F,
                    .slub = 0.36F,
                    .slubLength = 150.0F,
                    .wander = 0.19F,
                    .crimp = 0.9F,
                    .binding = Binding::kTwill,
                    .seed = seed};
  const Warp drawn{18.0F, {420.0F, 3, 0.5F, seed + 1}};
  const Warp rough{1.0F, {9.0F, 2, 0.6F, seed + 2}};
  // Yarn of uneven thickness crowds and parts: an even pitch beats with the screen.
  const Warp crowded{2.6F, {40.0F, 3, 0.6F, seed + 3}};
  const Survey<Weave::Place> places(sheet,
                                    [&](Spot p) { return twill.At(rough(crowded(drawn(p)))); });

  // Whiskers fan out from the left, roping lies square to the seam.
  const Fbm fan{120.0F, 3, 0.5F, seed + 5};
  const Fbm rope{46.0F, 3, 0.5F, seed + 6};
  const Fbm slack{500.0F, 2, 0.5F, seed + 7};
  const Field swell = Painted(sheet, [&](Spot p) {
    const float dx = p.fx + 0.25F * w;
    const float angle = (p.fy - 0.38F * h) / (dx + 300.0F) * 900.0F;
    const float crest = 1.0F - Abs(fan(angle + 60.0F * slack(p), dx * 0.10F));
    const float whisker = crest * crest * crest * SmoothRamp(0.75F * w, 0.1F * w, p.fx);
    const float s = FromSeam(sheet, p);
    const float roping =
        Abs(s) < 160.0F ? rope(s * 0.5F, p.fy + 0.9F * Abs(s)) * Exp(-Square(s / 52.0F)) : 0.0F;
    const float ledge = SmoothRamp(-42.0F, -36.0F, s) * SmoothRamp(46.0F, 38.0F, s);
    return 1.3F * whisker + 1.5F * roping + 1.0F * ledge + 0.5F * slack(p);
  });
  const Field bend = Relief(sheet, swell, 0.05F);
  const Fbm rub{260.0F, 4, 0.58F, seed + 8};
  const Fbm fibre{3.0F, 2, 0.7F, seed + 9};
  const Fbm streak{26.0F, 3, 0.6F, seed + 10};
  Field tone = Painted(sheet, [&](Spot p) {
    const Weave::Place& at = places(p);
    const float s = FromSeam(sheet, p);
    const float knee =
        Exp(-Square((p.fx - 0.34F * w) / (0.27F * w)) - Square((p.fy - 0.55F * h) / (0.36F * h)));
    const float fade = 0.62F * knee + 0.40F * rub(p) + 0.30F * swell(p) - 0.30F +
                       0.14F * streak(p.fx, p.fy * 0.05F);
    const float hair = fibre(at.along * 0.18F, at.across * 4.0F + Unit(at.thread) * 300.0F);
    const float dye = Unit(Hash(at.thread + 5)) - 0.5F;
    const float worn = Clamp01(fade * 0.9F + 0.30F * (at.height - 0.35F) + 0.12F * hair);
    // New cloth hides its weft; rubbed cloth does not.
    const float bared = SmoothRamp(-0.25F, 0.35F, fade);
    float value = at.warp ? 0.10F + 0.20F * at.height + 0.16F * dye
                          : 0.17F + 0.23F * bared + 0.22F * at.height + 0.10F * dye;
    value = Mix(value, 0.82F + 0.12F * at.height, worn) + 0.06F * hair + 0.13F * bend(p);
    const float gap =
        Max(Exp(-Square((s + 39.0F) / 3.0F)), 0.5F * Exp(-Square((s - 43.0F) / 3.0F)));
    value *= 1.0F - 0.7F * gap;
    if (Abs(s) > 60.0F) return value;
    const float first = Stitch(s + 25.0F, p.fy, seed + 50);
    const float second = Stitch(s - 25.0F, p.fy + 13.0F, seed + 51);
    const float stitch = Max(first, second);
    const float under = Max(Stitch((s + 22.0F) * 0.7F, p.fy - 4.0F, seed + 50),
                            Stitch((s - 28.0F) * 0.7F, p.fy + 9.0F, seed + 51));
    value *= 1.0F - 0.55F * under;
    if (stitch > 0.0F) {
      value = Mix(value, 0.52F + 0.36F * stitch + 0.10F * streak(p.fx * 3.0F, p.fy * 3.0F),
                  SmoothRamp(0.0F, 0.35F, stitch));
    }
    return value;
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.004F, 0.997F);
  return tone;
}

const RegisteredTexture kWornDenim(TextureRecipe{
    .name = "Worn_Denim",
    .set = TextureSet::kHidesAndCloth,
    .effects = {"Fabrics", "Distress (Medium)", "Weathered/Aged"},
    .seed = 1003,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
