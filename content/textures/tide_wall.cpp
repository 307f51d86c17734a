// Tide_Wall: the wall of a harbour at low water. Weed hangs black below, above
// it barnacles sit in white crowds up to a line that the highest tides drew;
// over that line concrete, bleached and streaked with salt and rust.
//
// What makes it read as that: three bands whose borders waver but keep their
// level, barnacles that are rings with a dark mouth, weed that hangs straight.
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
  const float height = static_cast<float>(sheet.height);
  const Fbm hang{13.0F, 4, 0.66F, seed + 1};
  const Fbm tuft{60.0F, 4, 0.6F, seed + 7};
  // Thread weed: fine, hung straight, in tufts.
  const Field weed = Painted(sheet, [&](Spot p) {
    return hang(p.fx + 5.0F * tuft(p.fx, p.fy * 0.4F), p.fy * 0.075F) +
           0.5F * tuft(p.fx, p.fy * 0.30F);
  });
  const Fbm waver{300.0F, 5, 0.55F, seed + 2};
  // 0 at the top of the wall, 1 at its foot.
  const Field level =
      Painted(sheet, [&](Spot p) { return p.fy / height + 0.075F * waver(p.fx, p.fy * 0.7F); });
  const Warp odd{3.0F, {12.0F, 2, 0.5F, seed + 3}};
  const Spots large{34.0F, 0.80F, 6.0F, 17.0F, seed + 4};
  const Spots small{16.0F, 0.75F, 2.6F, 7.0F, seed + 5};
  const Fbm crowd{130.0F, 4, 0.55F, seed + 6};
  struct Shell {
    float rise;   // pixels above the wall
    float mouth;  // 0..1
    float own;
  };
  const Survey<Shell> shells(sheet, [&](Spot p) {
    const float v = level(p);
    const float many =
        SmoothRamp(0.40F, 0.56F, v) * SmoothRamp(0.86F, 0.70F, v) * 1.25F + 1.0F * crowd(p) + 0.02F;
    if (many <= 0.0F) return Shell{0.0F, 0.0F, 0.5F};
    const Spot q = odd(p);
    const Spots::Hit a = large(q);
    const Spots::Hit b = small(q);
    const bool first = a.depth > 0.0F && Unit(a.hash) < many - 0.1F;
    const Spots::Hit& hit = first ? a : b;
    if (hit.depth <= 0.0F || Unit(hit.hash) > many) return Shell{0.0F, 0.0F, 0.5F};
    // A cone with a crater: six plates meet in grooves.
    const float up = Min(hit.depth / 0.62F, 1.0F);
    const float mouth = SmoothRamp(0.62F, 0.74F, hit.depth);
    return Shell{hit.radius * 0.75F * up * (1.0F - 0.8F * mouth), mouth, Unit(Hash(hit.hash + 1))};
  });

  const Fbm luck{15.0F, 4, 0.7F, seed + 10};
  const Fbm sway{120.0F, 3, 0.5F, seed + 11};
  const Fbm where{420.0F, 2, 0.5F, seed + 12};
  const Field runs = RunDown(
      Painted(sheet,
              [&](Spot p) {
                const float at = 0.07F + 0.16F * where(p.fx * 1.7F, 30.0F);
                const float near = SmoothRamp(0.02F, 0.0F, Abs(p.fy / height - at));
                return near * Clamp01(1.8F * luck(p.fx, 40.0F) + 1.2F * where(p.fx + 800.0F, 9.0F) -
                                      0.30F);
              }),
      [&](Spot) { return 0.9972F; }, [&](Spot p) { return 0.3F * sway(p.fx, p.fy * 0.4F); });

  const Field cast = Painted(sheet, Fbm{240.0F, 6, 0.6F, seed + 20});
  const Field grit = Painted(sheet, Fbm{5.0F, 3, 0.72F, seed + 21});
  const Field lump = Painted(sheet, Fbm{40.0F, 4, 0.6F, seed + 22});
  const Spots holes{44.0F, 0.35F, 1.5F, 9.0F, seed + 23};
  const Field relief = Painted(sheet, [&](Spot p) {
    const float v = level(p);
    const float wet = SmoothRamp(0.56F, 0.70F, v + 0.05F * weed(p));
    return shells(p).rise * (1.0F - 0.5F * wet) + 3.6F * wet * weed(p) + 1.6F * lump(p) +
           0.55F * grit(p) - 2.5F * SmoothRamp(0.0F, 0.4F, holes(p).depth) * (1.0F - wet) +
           6.0F * cast(p);
  });
  const Field light = Relief(sheet, relief, 0.55F);
  Field tone = Painted(sheet, [&](Spot p) {
    const float v = level(p) + 0.02F * lump(p);
    float value = 0.84F + 0.14F * cast(p) + 0.05F * lump(p) + 0.06F * grit(p);
    value *= 1.0F - 0.52F * runs(p);
    value -= 0.25F * SmoothRamp(0.1F, 0.5F, holes(p).depth);
    // The line that the highest tides drew, and what is damp below it.
    const float line = SmoothRamp(0.030F, 0.0F, Abs(v - 0.43F)) * (0.6F + 0.9F * lump(p));
    value = Mix(value, 0.46F + 0.12F * cast(p) + 0.08F * grit(p), SmoothRamp(0.40F, 0.50F, v));
    value -= 0.22F * line;
    const float green = SmoothRamp(0.55F, 0.68F, v + 0.08F * weed(p));
    value = Mix(value, 0.17F + 0.11F * weed(p) + 0.03F * grit(p), green);
    const Shell& shell = shells(p);
    if (shell.rise > 0.0F || shell.mouth > 0.0F) {
      const float lime = 0.80F + 0.16F * (shell.own - 0.5F) - 0.4F * SmoothRamp(0.62F, 0.90F, v);
      value = Mix(value, lime, SmoothRamp(0.0F, 1.2F, shell.rise) * (1.0F - 0.7F * green));
      value = Mix(value, 0.10F, 0.85F * shell.mouth * (1.0F - green));
    }
    return value + 0.27F * light(p);
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.004F, 0.995F);
  return tone;
}

const RegisteredTexture kTideWall(TextureRecipe{
    .name = "Tide_Wall",
    .set = TextureSet::kWeatherStation,
    .effects = {"Weathered/Aged", "Erosion (Heavy)", "Texture (Heavy)"},
    .seed = 3034,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
