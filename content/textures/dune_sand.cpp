// Dune_Sand: dry sand on the back of a dune, after a night of steady wind.
// Ripples lie across the wind, long slopes towards it and short ones away;
// they fork and end, swing around rises, and lose themselves in hollows where
// coarse grains gather.
//
// What makes it read as that: crests that are sharper than troughs, forks like
// a Y, light that grazes, grains that can be told one from another.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Fbm dune{760.0F, 3, 0.5F, seed + 1};
  const Fbm swing{300.0F, 3, 0.45F, seed + 2};
  const Fbm tremble{70.0F, 3, 0.5F, seed + 3};
  const Fbm gust{240.0F, 3, 0.5F, seed + 4};
  struct Ripple {
    float height, strength;
  };
  // Trains of ripples of nearly one length; where two fall out of step, a
  // crest forks.
  const Survey<Ripple> ripples(sheet, [&](Spot p) {
    const float bend = 1.15F * swing(p) + 0.10F * tremble(p);
    const float along = p.fx * 0.94F + p.fy * 0.34F;
    const float a = along / 51.0F + 1.7F * bend + 2.4F * dune(p);
    const float b = (along * 1.02F + p.fy * 0.13F) / 49.0F + 1.9F * bend + 2.9F * dune(p);
    const float c = (along * 0.97F - p.fy * 0.17F) / 53.0F + 1.5F * bend + 2.1F * dune(p);
    const float re =
        Cos(kTau * Fraction(a)) + 0.75F * Cos(kTau * Fraction(b)) + 0.6F * Cos(kTau * Fraction(c));
    const float im =
        Sin(kTau * Fraction(a)) + 0.75F * Sin(kTau * Fraction(b)) + 0.6F * Sin(kTau * Fraction(c));
    const float size = Length(re, im);
    const float tall = SmoothRamp(0.0F, 1.1F, size) * (0.62F + 0.55F * gust(p));
    // The wave without its size: cosine and sine of one phase.
    const float cosine = re / Max(size, 0.05F);
    const float sine = im / Max(size, 0.05F);
    // Steep on the lee: the second harmonic leans the wave over.
    const float wave =
        cosine + 0.30F * (2.0F * sine * cosine) + 0.12F * (2.0F * cosine * cosine - 1.0F);
    return Ripple{wave * tall, tall};
  });
  const Fbm grains{2.3F, 2, 0.75F, seed + 10};
  const Fbm rough{7.0F, 3, 0.65F, seed + 11};
  const Spots stones{15.0F, 0.20F, 0.9F, 3.4F, seed + 12};
  const Field pebble = Painted(sheet, [&](Spot p) {
    const float here = ripples(p).height;
    const Spots::Hit hit = stones(p);
    // Coarse grains roll into troughs.
    const float stay = 0.42F - 0.45F * here + 0.8F * gust(p);
    return hit.depth > 0.0F && Unit(hit.hash) < stay ? Sqrt(hit.depth) * hit.radius : 0.0F;
  });
  const Field relief = Painted(sheet, [&](Spot p) {
    return 9.5F * ripples(p).height + 60.0F * dune(p) + 0.55F * grains(p) + 0.7F * rough(p) +
           0.9F * pebble(p);
  });
  const Field light = Relief(sheet, relief, 0.95F);
  Field tone = Painted(sheet, [&](Spot p) {
    const float crest = ripples(p).height;
    float value = 0.55F + 0.52F * light(p) + 0.09F * crest + 0.06F * grains(p) + 0.05F * rough(p) +
                  0.10F * dune(p);
    const float dark = SoftThreshold(grains(p) + 0.35F * rough(p) - 0.3F * crest, 0.52F, 0.2F);
    value -= 0.20F * dark;
    if (pebble(p) > 0.0F) value = Mix(value, 0.34F + 0.5F * light(p), 0.6F);
    return value;
  });
  StretchTo(sheet, tone, 0.004F, 0.996F);
  return tone;
}

const RegisteredTexture kDuneSand(TextureRecipe{
    .name = "Dune_Sand",
    .set = TextureSet::kWeatherStation,
    .effects = {"Stone/Minerals", "Erosion (Medium)", "Texture (Medium)"},
    .seed = 3032,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
