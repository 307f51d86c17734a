// Rusted: a sheet of iron that stood outdoors for decades. Remains of mill
// scale lie dark and smooth; rust has eaten around them in scabs with broken
// rims; powdery blooms, the youngest rust, are brightest.
//
// What makes it read as that: three materials with a border of their own
// between them, grain that is rough on the rust and fine on the scale, pits
// with a lit far wall, and streaks that run down from the wettest places.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Warp grown{46.0F, {170.0F, 4, 0.55F, seed}};
  const Fbm spread{620.0F, 7, 0.56F, seed + 10};
  const Fbm crust{34.0F, 4, 0.65F, seed + 20};
  const Fbm grain{5.5F, 3, 0.75F, seed + 30};
  const Fbm scaleGrain{3.0F, 2, 0.6F, seed + 31};

  // How far corrosion went: below 0 the scale holds, towards 1 it is deep.
  Field rust = Painted(sheet, [&](Spot p) {
    const Spot q = grown(p);
    return spread(q) + 0.16F * crust(p) + 0.05F * grain(p) + 0.1F;
  });
  const Spots blooms{120.0F, 0.55F, 9.0F, 58.0F, seed + 40};
  const Warp ragged{13.0F, {24.0F, 4, 0.65F, seed + 41}};
  const Field bloom = Painted(sheet, [&](Spot p) {
    const float core = SmoothRamp(0.0F, 0.55F, blooms(ragged(p)).depth + 0.10F * grain(p));
    return core * SmoothRamp(-0.25F, 0.25F, rust(p));
  });
  const Field runs = RunDown(
      bloom, [&](Spot p) { return 0.982F + 0.016F * LineNoise(p.fx / 6.0F, seed + 50); },
      [&](Spot p) { return 0.25F * LineNoise(p.fy / 60.0F, seed + 51); });

  const Spots pits{15.0F, 0.42F, 1.2F, 6.0F, seed + 60};
  Field height = Painted(sheet, [&](Spot p) {
    const float corroded = SoftThreshold(rust(p), 0.0F, 0.10F);
    const float scab = SoftThreshold(rust(p), 0.26F, 0.06F) * 0.35F;
    const float rough = corroded * (0.55F * crust(p) + 0.30F * grain(p));
    const float pit = corroded * SmoothRamp(0.0F, 0.5F, pits(p).depth) * 0.6F;
    return corroded * 0.5F + scab + rough + bloom(p) * (0.5F + 0.4F * grain(p)) - pit +
           0.05F * scaleGrain(p);
  });
  const Field light = Relief(sheet, height, 0.22F);

  const Fbm cloud{260.0F, 4, 0.5F, seed + 70};
  Field tone = Painted(sheet, [&](Spot p) {
    const float corroded = SoftThreshold(rust(p), 0.0F, 0.10F);
    const float scab = SoftThreshold(rust(p), 0.26F, 0.06F);
    const float scale = 0.20F + 0.07F * cloud(p) + 0.03F * scaleGrain(p);
    float body = Mix(0.50F, 0.40F, scab) + 0.10F * cloud(p) + 0.12F * crust(p) + 0.09F * grain(p);
    body = Mix(body, 0.84F, 0.85F * bloom(p));
    float value = Mix(scale, body, corroded);
    value += 0.22F * runs(p) * (1.0F - bloom(p)) * (0.6F + 0.4F * grain(p));
    value -= 0.14F * corroded * SmoothRamp(0.0F, 0.5F, pits(p).depth);
    return value + 0.20F * light(p) * (0.35F + 0.65F * corroded);
  });
  StretchTo(sheet, tone, 0.002F, 0.997F);
  return tone;
}

const RegisteredTexture kRusted(TextureRecipe{
    .name = "Rusted",
    .set = TextureSet::kForge,
    .effects = {"Metals", "Industrial", "Weathered/Aged", "Texture (Heavy)"},
    .seed = 88,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
