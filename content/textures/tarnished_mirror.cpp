// Tarnished_Mirror: the glass from a hotel's staircase. Damp got behind it from
// the frame: the silver went black along the edges, bloomed into islands with
// fine rims, and farther in only freckles and worm lines tell of it; the middle
// is still a mirror.
//
// What makes it read as that: black that comes from the edge in lobes, a halo
// before every border, dots that grow fewer inwards, a clean bright middle.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/scratches.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

void AddWorms(StrokeSet& strokes, const Sheet& sheet, const Field& damp, std::uint32_t seed) {
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  const int tries = FloorInt(width * height / 5200.0F);
  for (int i = 0; i < tries; ++i) {
    Dice dice(seed, i);
    const float x = dice.Unit() * (width - 1.0F);
    const float y = dice.Unit() * (height - 1.0F);
    if (dice.Unit() > 1.3F * damp.Sample(x, y) - 0.12F) continue;
    AddWalk(strokes, {.x = x,
                      .y = y,
                      .length = dice.Between(12.0F, 120.0F),
                      .heading = dice.Between(0.0F, kTau),
                      .wobble = 9.0F,
                      .wobblePeriod = 15.0F,
                      .radius = dice.Between(0.5F, 1.5F),
                      .strength = dice.Between(0.3F, 0.9F),
                      .skip = 0.6F,
                      .step = 4.0F,
                      .seed = dice.Word()});
  }
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  const Warp torn{26.0F, {70.0F, 4, 0.6F, seed + 1}};
  const Fbm lobes{300.0F, 5, 0.55F, seed + 2};
  const Fbm reach{430.0F, 3, 0.5F, seed + 5};
  const Fbm islands{88.0F, 4, 0.55F, seed + 3};
  const Fbm fray{9.0F, 3, 0.65F, seed + 4};
  // 1 at the frame, falling inwards; the foot of a mirror suffers most.
  const Field damp = Painted(sheet, [&](Spot p) {
    const float left = p.fx / width;
    const float low = 1.0F - p.fy / height;
    const float side =
        Min(Min(left * 1.25F, (1.0F - left) * 1.5F), Min(low * 0.8F, (1.0F - low) * 1.5F));
    // Deep lobes: damp creeps far in at some places and hardly at others.
    const float creep = Max(0.02F, side - 0.16F * (0.15F + reach(p)));
    return Exp(-creep * 7.0F) + 0.55F * Exp(-3.0F * Length(left, low)) + 0.26F * lobes(p);
  });
  const Field loss = Painted(sheet, [&](Spot p) {
    const Spot q = torn(p);
    return damp(p) + 0.30F * islands(q) + 0.05F * fray(p);
  });
  const Spots large{52.0F, 0.7F, 1.5F, 20.0F, seed + 10};
  const Spots small{13.0F, 0.6F, 0.8F, 4.6F, seed + 11};
  const Warp odd{5.0F, {16.0F, 3, 0.6F, seed + 12}};
  const Field freckle = Painted(sheet, [&](Spot p) {
    const float here = damp(p) + 0.16F * islands(p);
    const Spot q = odd(p);
    const Spots::Hit a = large(q);
    const Spots::Hit b = small(q);
    float dark = 0.0F;
    // A spot of decay: a dark rim, and its middle gone grey or clear.
    if (Unit(a.hash) < 1.1F * here - 0.05F) {
      dark = SmoothRamp(0.0F, 0.10F, a.depth) * (1.0F - 0.55F * SmoothRamp(0.16F, 0.5F, a.depth));
    }
    if (Unit(b.hash) < 1.3F * here - 0.06F)
      dark = Max(dark, 0.85F * SmoothRamp(0.0F, 0.3F, b.depth));
    return dark;
  });
  StrokeSet worms;
  AddWorms(worms, sheet, damp, seed + 20);
  AddScratches(worms, sheet,
               {.count = 26,
                .minLength = 60.0F,
                .maxLength = 520.0F,
                .spread = 2.0F,
                .minRadius = 0.3F,
                .maxRadius = 0.7F,
                .minStrength = 0.15F,
                .maxStrength = 0.5F},
               seed + 21);
  Field worm(sheet);
  worms.Draw(sheet, worm);

  const Fbm cloud{380.0F, 4, 0.5F, seed + 30};
  const Fbm dust{3.0F, 2, 0.7F, seed + 31};
  const Fbm back{34.0F, 5, 0.64F, seed + 32};
  Field tone = Painted(sheet, [&](Spot p) {
    const float l = loss(p);
    const float speck = dust(p);
    const float patch = l > 0.5F ? back(p) : 0.0F;
    float value = 0.985F + 0.05F * cloud(p) - 0.24F * SmoothRamp(-0.02F, 0.5F, l);
    value -= 0.04F * Max(0.0F, speck);
    value *= 1.0F - 0.75F * freckle(p);
    value *= 1.0F - 0.60F * worm(p);
    // Tarnish: a pale bloom first, then a brown hem, then black.
    const float bloom = SmoothRamp(0.40F, 0.53F, l) * SmoothRamp(0.60F, 0.55F, l);
    value = Mix(value, 0.99F, 0.6F * bloom);
    const float grey = SmoothRamp(0.56F, 0.60F, l);
    value = Mix(value, 0.52F + 0.16F * patch + 0.05F * speck, grey);
    const float hem = SmoothRamp(0.05F, 0.0F, Abs(l - 0.615F));
    value *= 1.0F - 0.45F * hem;
    const float black = SmoothRamp(0.70F, 0.80F, l + 0.10F * patch);
    value = Mix(value, 0.10F + 0.07F * patch + 0.03F * speck, black);
    const float bare = SmoothRamp(1.04F, 1.10F, l + 0.12F * patch);
    return Mix(value, 0.34F + 0.13F * patch + 0.06F * speck, 0.8F * bare);
  });
  Soften(sheet, tone, 0.40F);
  StretchTo(sheet, tone, 0.003F, 0.70F);
  return tone;
}

const RegisteredTexture kTarnishedMirror(TextureRecipe{
    .name = "Tarnished_Mirror",
    .set = TextureSet::kWallsAndSigns,
    .effects = {"Metals", "Weathered/Aged", "Erosion (Light)", "Ephemeral"},
    .seed = 3042,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
