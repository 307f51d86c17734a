// Pond_Ice: black ice on a pond, swept by wind. Cracks run through it for
// metres and show as white veils, since one sees into them at a slant; bubbles
// froze in as discs, one below the other; powder snow lies in the lee.
//
// What makes it read as that: a dark ground with depth, cracks with one sharp
// and one veiled side, bubbles in clusters, snow that lies on top of all.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/cracks.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/scratches.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

// Cracks seen from above, and the veil that each draws below the surface: a
// band to its side, fading with depth.
Field Veil(const Sheet& sheet, const Field& crack, float dx, float dy, int reach) {
  Field veil = crack;
  // Doubling the way each time: as if smeared over `reach` pixels.
  float step = 1.0F;
  for (int way = 1; way < reach; way *= 2) {
    const Field before = veil;
    const float fade = 1.0F - 0.9F * step / static_cast<float>(reach);
    Repaint(sheet, veil, [&](Spot p) {
      return Max(before(p), fade * before.Sample(p.fx - dx * step, p.fy - dy * step));
    });
    step *= 2.0F;
  }
  return veil;
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  StrokeSet great;
  AddCracks(great, sheet,
            {.starts = 7,
             .length = 1900.0F,
             .radius = 2.0F,
             .jerk = 0.16F,
             .pull = 0.10F,
             .branchEvery = 260.0F,
             .branchAngle = 0.8F,
             .generations = 3,
             .step = 16.0F},
            seed + 1);
  Field crack(sheet);
  great.Draw(sheet, crack, {.ragged = 0.8F, .raggedPeriod = 7.0F, .seed = seed + 2});
  StrokeSet hair;
  AddCracks(hair, sheet,
            {.starts = 26,
             .length = 420.0F,
             .radius = 0.7F,
             .jerk = 0.22F,
             .branchEvery = 70.0F,
             .generations = 3,
             .step = 9.0F},
            seed + 3);
  Field fine(sheet);
  hair.Draw(sheet, fine);
  Field veil = Veil(sheet, crack, 0.62F, 0.78F, 64);
  Blur(sheet, veil, 1.2F);

  StrokeSet blades;
  AddScratches(blades, sheet,
               {.count = 46,
                .minLength = 200.0F,
                .maxLength = 1300.0F,
                .heading = 0.5F,
                .spread = 1.2F,
                .stray = 0.3F,
                .minRadius = 0.4F,
                .maxRadius = 1.1F,
                .minStrength = 0.2F,
                .maxStrength = 0.7F},
               seed + 4);
  Field blade(sheet);
  blades.Draw(sheet, blade);

  const Spots discs{58.0F, 0.6F, 4.0F, 29.0F, seed + 10};
  const Spots specks{17.0F, 0.5F, 1.0F, 5.0F, seed + 11};
  const Fbm swarm{300.0F, 4, 0.55F, seed + 12};
  const Warp odd{4.0F, {26.0F, 2, 0.5F, seed + 13}};
  const Field bubble = Painted(sheet, [&](Spot p) {
    const float many = swarm(p);
    if (many < -0.06F) return 0.0F;
    const Spot q = odd(p);
    float white = 0.0F;
    // Three to a stack, the lower the dimmer and a little aside.
    for (int k = 0; k < 3; ++k) {
      const float deep = static_cast<float>(k);
      const Spots::Hit hit = discs(q.fx - 5.0F * deep, q.fy - 7.0F * deep);
      if (Unit(hit.hash) > 0.2F + 2.0F * many) continue;
      const float body =
          0.55F * SmoothRamp(0.0F, 0.12F, hit.depth) +
          0.45F * SmoothRamp(0.0F, 0.1F, hit.depth) * SmoothRamp(0.4F, 0.1F, hit.depth);
      white = Max(white, body * (1.0F - 0.30F * deep));
    }
    const Spots::Hit speck = specks(q);
    if (Unit(speck.hash) < 0.25F + 1.4F * many)
      white = Max(white, 0.8F * SmoothRamp(0.0F, 0.4F, speck.depth));
    return white;
  });

  const Fbm depth{520.0F, 5, 0.5F, seed + 20};
  const Fbm cloud{120.0F, 5, 0.58F, seed + 21};
  const Fbm drift{360.0F, 6, 0.60F, seed + 22};
  const Fbm crystal{3.5F, 2, 0.75F, seed + 23};
  const Field snow = Painted(sheet, [&](Spot p) {
    const float along = 0.88F * p.fx + 0.47F * p.fy;
    const float across = 0.88F * p.fy - 0.47F * p.fx;
    return drift(along * 0.36F, across * 1.2F) + 0.10F * crystal(p) + 0.10F * crack(p);
  });
  const Field light = Relief(sheet, snow, 0.05F);
  Field tone = Painted(sheet, [&](Spot p) {
    float value = 0.17F + 0.16F * depth(p) + 0.06F * cloud(p);
    value = Screen(value, 0.52F * bubble(p));
    value = Screen(value, (0.40F + 0.5F * cloud(p) + 0.3F * depth(p)) * Min(1.0F, veil(p)));
    value = Screen(value, 0.62F * Min(1.0F, crack(p)) + 0.34F * fine(p));
    value = Screen(value, 0.30F * blade(p));
    const float lies = SoftThreshold(snow(p), 0.34F, 0.30F);
    const float dust = 0.30F * SoftThreshold(snow(p), 0.05F, 0.5F) * (0.6F + 0.8F * crystal(p));
    value = Screen(Clamp01(value), Max(0.0F, dust));
    return Mix(value, 0.90F + 0.08F * crystal(p) + 0.12F * light(p), lies);
  });
  StretchTo(sheet, tone, 0.004F, 0.997F);
  return tone;
}

const RegisteredTexture kPondIce(TextureRecipe{
    .name = "Pond_Ice",
    .set = TextureSet::kWeatherStation,
    .effects = {"Ephemeral", "Distress (Light)", "Erosion (Light)"},
    .seed = 3035,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
