// Cyanotype_Brush: the coated part of a sheet that was sensitised by hand with a wide
// brush. The picture shows where the brush went; beyond it is bare paper,
// here black.
//
// What makes it read as that: strokes laid beside one another, none as long as
// its neighbour; each begins full and ends in bristle marks; thin seams where
// two do not quite meet and darker ones where they overlap; a few drips.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/stains.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

constexpr int kStrokes = 8;

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  struct Sweep {
    float y, half, from, to, tilt;
    bool back;  // laid from right to left
    std::uint32_t seed;
  };
  Sweep sweeps[kStrokes];
  for (int i = 0; i < kStrokes; ++i) {
    Dice dice(seed, i);
    const float share = (static_cast<float>(i) + 0.5F) / kStrokes;
    sweeps[i] = {(0.075F + 0.85F * share) * h + dice.Around(0.0F, 8.0F),
                 0.5F * 0.87F * h / kStrokes + dice.Around(7.0F, 7.0F),
                 dice.Between(0.035F, 0.115F) * w,
                 dice.Between(0.885F, 0.965F) * w,
                 dice.Around(0.0F, 0.012F),
                 i % 2 == 1,
                 dice.Word()};
  }
  StrokeSet splash;
  AddSplash(splash, 0.90F * w, 0.90F * h, 430.0F, 60, seed + 60);
  AddSplash(splash, 0.10F * w, 0.12F * h, 300.0F, 36, seed + 61);
  Field drop(sheet);
  splash.Draw(sheet, drop, {.ragged = 1.2F, .raggedPeriod = 7.0F, .seed = seed + 62});

  const Fbm bristle{9.0F, 3, 0.68F, seed + 1};
  const Fbm tuft{46.0F, 3, 0.6F, seed + 2};
  const Fbm toothNoise{4.4F, 3, 0.72F, seed + 3};
  const Field tooth = Painted(sheet, toothNoise);
  const Fbm pool{200.0F, 3, 0.56F, seed + 5};
  Field tone = Painted(sheet, [&](Spot p) {
    float clear = 1.0F;  // paper that no stroke has reached
    float laid = 0.0F;   // coats on top of one another
    float seam = 0.0F;
    for (const Sweep& sweep : sweeps) {
      const float y = p.fy - sweep.y - sweep.tilt * (p.fx - 0.5F * w) +
                      12.0F * LineNoise((p.fx + sweep.y) / 420.0F, seed + 4);
      if (Abs(y) > sweep.half + 16.0F) continue;
      const float shift = Unit(sweep.seed) * 3000.0F;
      const float hair = bristle(p.fx * 0.010F + shift, p.fy);
      const float lock = tuft(p.fx * 0.03F + shift, p.fy);
      const float edge = sweep.half - Abs(y) + 7.0F * lock + 4.0F * hair;
      // Towards its end the brush runs dry and only some bristles still wet.
      const float start = sweep.back ? sweep.to - p.fx : p.fx - sweep.from;
      const float end = sweep.back ? p.fx - sweep.from : sweep.to - p.fx;
      const float dry = end / 150.0F + 1.5F * hair + 1.0F * lock + 0.5F * tooth(p);
      const float full = start / 16.0F + 2.2F * lock + 1.2F * hair + 0.6F * tooth(p);
      const float cover = SmoothRamp(-1.5F, 2.5F, edge + 1.4F * tooth(p)) *
                          SmoothRamp(-0.14F, 0.16F, dry) * SmoothRamp(-0.3F, 0.7F, full);
      clear *= 1.0F - cover;
      laid += cover * (1.0F - 0.25F * Clamp01(0.5F - 0.8F * hair) * SmoothRamp(500.0F, 0.0F, end));
      seam = Max(seam, cover * Exp(-Max(0.0F, edge) / 5.0F));
    }
    const float wet = drop(p);
    clear *= 1.0F - 0.92F * wet;
    const float streak = bristle(p.fx * 0.012F, p.fy);
    const float coat = 0.99F - 0.11F * Clamp01(streak + 0.1F) - 0.08F * Clamp01(pool(p)) -
                       0.13F * seam * Clamp01(0.6F + 2.0F * pool(p)) -
                       0.05F * Clamp01(laid - 1.0F) + 0.02F * tooth(p);
    const float paper = 0.05F + 0.035F * tooth(p) + 0.03F * pool(p);
    return Mix(coat, paper, clear);
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.004F, 0.93F);
  return tone;
}

const RegisteredTexture kCyanotypeBrush(TextureRecipe{
    .name = "Cyanotype_Brush",
    .set = TextureSet::kDarkroom,
    .effects = {"Papers", "Ephemeral", "Distress (Light)"},
    .seed = 1038,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
