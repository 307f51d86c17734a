// Hazard_Stripes: the edge of a loading ramp, painted in black and white bars
// long ago. Lorries scraped it, paint came off in flakes and the steel shows;
// a second coat was put on beside the lines of the first, by hand.
//
// What makes it read as that: broad slanting bars with brushed borders,
// scrapes that run along the ramp and take all colours alike, rust in chips.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/peel.h"
#include "toolbox/scratches.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float height = static_cast<float>(sheet.height);
  StrokeSet scrapes;
  AddScratches(scrapes, sheet,
               {.count = 90,
                .minLength = 120.0F,
                .maxLength = 1400.0F,
                .heading = 0.03F,
                .spread = 0.10F,
                .stray = 0.08F,
                .minRadius = 0.6F,
                .maxRadius = 3.4F,
                .companions = 3},
               seed + 1);
  AddScuffs(scrapes, sheet,
            {.count = 60,
             .minLength = 90.0F,
             .maxLength = 520.0F,
             .heading = 0.03F,
             .spread = 0.12F,
             .stray = 0.1F,
             .slender = 0.5F,
             .maxLines = 60},
            seed + 2);
  Field scrape(sheet);
  scrapes.Draw(sheet, scrape, {.ragged = 0.8F, .raggedPeriod = 6.0F, .seed = seed + 3});

  const Fbm hand{190.0F, 4, 0.55F, seed + 10};
  const Fbm bristle{7.0F, 3, 0.65F, seed + 11};
  const Fbm weather{330.0F, 6, 0.60F, seed + 12};
  const Fbm nibble{19.0F, 4, 0.66F, seed + 13};
  const Fbm grit{4.5F, 3, 0.7F, seed + 14};
  const Cells chips{34.0F, 1.0F, seed + 15};
  const Warp crooked{9.0F, {24.0F, 3, 0.6F, seed + 16}};
  // Position across the bars, in bars: whole numbers are borders.
  const auto barAt = [&](Spot p, float slip) {
    const float across = 0.78F * p.fx + 0.626F * p.fy + slip;
    const float along = 0.78F * p.fy - 0.626F * p.fx;
    return (across + 7.0F * hand(p) + 2.2F * bristle(along * 0.05F, across)) / 236.0F;
  };
  // 1 on a dark bar, 0 on a light one, with a border as soft as wet paint's.
  const auto dark = [](float bar) {
    const float t = Fraction(bar * 0.5F) * 2.0F;
    const float inside = t < 1.0F ? Min(t, 1.0F - t) : -Min(t - 1.0F, 2.0F - t);
    return SmoothRamp(-0.005F, 0.005F, inside);
  };
  const Field loss = Painted(sheet, [&](Spot p) {
    const Spot q = crooked(p);
    const CellSample chip = chips(q.fx, q.fy);
    const float low = SmoothRamp(0.50F, 1.05F, p.fy / height + 0.10F * hand(p));
    return 0.85F * weather(p.fx * 0.7F, p.fy) + 0.26F * (chip.id - 0.5F) + 0.13F * nibble(p) +
           0.55F * low + 0.85F * scrape(p) - 0.05F;
  });
  const PeelingCoat second =
      Peel(sheet, loss, {.at = 0.16F, .softness = 0.04F, .curl = 5.0F, .thickness = 3.0F});
  const PeelingCoat first =
      Peel(sheet, loss, {.at = 0.40F, .softness = 0.05F, .curl = 4.0F, .thickness = 3.0F});
  const Field relief = Painted(sheet, [&](Spot p) {
    const float bare = 1.0F - first.cover(p);
    return 1.3F * second.cover(p) + 1.2F * first.cover(p) + 0.8F * second.lift(p) +
           0.30F * bristle(p.fx * 0.06F + p.fy * 0.05F, p.fy) * second.cover(p) +
           bare * (0.5F * nibble(p) + 0.5F * grit(p));
  });
  const Field light = Relief(sheet, relief, 0.30F);
  const Fbm rust{120.0F, 6, 0.64F, seed + 20};
  Field tone = Painted(sheet, [&](Spot p) {
    const float grime = 0.10F * weather(p.fx + 800.0F, p.fy) + 0.05F * nibble(p);
    float value = Mix(0.91F + 0.8F * grime, 0.13F - 0.3F * grime, dark(barAt(p, 0.0F)));
    // What lies below costs work only where it shows.
    if (second.cover(p) < 1.0F) {
      const float lower = Mix(0.74F + grime, 0.27F + 0.5F * grime, dark(barAt(p, 31.0F)));
      value = Mix(lower, value, second.cover(p));
    }
    if (first.cover(p) < 1.0F) {
      const float scale = rust(p);
      float iron = 0.47F + 0.16F * scale + 0.07F * nibble(p) + 0.07F * grit(p);
      iron = Mix(iron, 0.25F + 0.10F * nibble(p) + 0.06F * grit(p),
                 SoftThreshold(scale, 0.02F, 0.30F));
      iron = Mix(iron, 0.70F + 0.08F * grit(p), 0.6F * Min(1.0F, scrape(p)));
      value = Mix(iron, value, Max(first.cover(p), second.cover(p)));
    }
    value *= 1.0F - 0.40F * second.shadow(p) * (1.0F - second.cover(p));
    return value + 0.15F * light(p);
  });
  Soften(sheet, tone, 0.45F);
  StretchTo(sheet, tone, 0.004F, 0.996F);
  return tone;
}

const RegisteredTexture kHazardStripes(TextureRecipe{
    .name = "Hazard_Stripes",
    .set = TextureSet::kWallsAndSigns,
    .effects = {"Industrial", "Distress (Heavy)", "Erosion (Medium)"},
    .seed = 3043,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
