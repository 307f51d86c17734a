// Copper_Roof: a church roof of copper sheets with standing seams, a hundred
// and fifty years in the rain. The pale green stands thickest where water dries
// slowly; under each seam and lap it has run down in pale and dark threads;
// near the ridge some brown metal still shows.
//
// What makes it read as that: seams that stand up and cast a shadow, runs that
// start at them and thin out, borders of the patina that are powdery, not drawn.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

constexpr float kTray = 388.0F;  // from seam to seam

struct Tray {
  float toSeam;  // pixels to the right of the seam, negative to its left
  float below;   // pixels under the lap above
  std::uint32_t hash;
};

Tray TrayAt(float x, float y, std::uint32_t seed) {
  const auto seamAt = [&](int i) {
    return (static_cast<float>(i) + 0.13F * (Unit(HashAt(i, 3, seed)) - 0.5F)) * kTray + 150.0F;
  };
  int i = FloorInt((x - 150.0F) / kTray);
  if (x < seamAt(i)) --i;
  if (x >= seamAt(i + 1)) ++i;
  const float left = x - seamAt(i);
  const float right = x - seamAt(i + 1);
  const float length = 1150.0F;
  const float t = y + 2000.0F * Unit(HashAt(i, 4, seed));
  const int sheetNumber = FloorInt(t / length);
  return {left < -right ? left : right, t - static_cast<float>(sheetNumber) * length,
          HashAt(i, sheetNumber, seed + 5)};
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float height = static_cast<float>(sheet.height);
  const Fbm waver{260.0F, 3, 0.5F, seed + 1};
  const Survey<Tray> trays(sheet, [&](Spot p) {
    return TrayAt(p.fx + 5.0F * waver(p.fx, p.fy * 0.8F), p.fy + 6.0F * waver(p.fx + 70.0F, p.fy),
                  seed);
  });
  // Water gathers behind seams and drips off laps; it carries patina down.
  const Fbm luck{17.0F, 4, 0.7F, seed + 10};
  const Fbm sway{120.0F, 3, 0.5F, seed + 11};
  const Fbm dry{140.0F, 3, 0.5F, seed + 12};
  Field wells = Painted(sheet, [&](Spot p) {
    const Tray& at = trays(p);
    const float lap = SmoothRamp(14.0F, 2.0F, at.below);
    const float seam = 0.45F * SmoothRamp(24.0F, 8.0F, Abs(at.toSeam));
    return Clamp01(Max(lap, seam) * (0.2F + 1.9F * luck(p.fx, p.fy * 0.25F)));
  });
  const auto wander = [&](Spot p) { return 0.35F * sway(p.fx, p.fy * 0.7F); };
  Field pale = RunDown(
      wells, [&](Spot p) { return 0.9965F - 0.0030F * dry(p.fx, p.fy * 0.5F); }, wander);
  const Field dark = RunDown(
      Painted(sheet,
              [&](Spot p) {
                return trays(p).below < 9.0F
                           ? Clamp01(2.6F * luck(p.fx + 500.0F, p.fy * 0.2F) - 0.35F)
                           : 0.0F;
              }),
      [&](Spot p) { return 0.9972F - 0.0035F * dry(p.fx + 90.0F, p.fy); }, wander);
  Soften(sheet, pale, 0.4F);

  const Fbm weather{340.0F, 6, 0.6F, seed + 20};
  const Fbm powder{6.0F, 3, 0.72F, seed + 21};
  const Fbm blotch{60.0F, 5, 0.62F, seed + 22};
  const Fbm buckle{230.0F, 3, 0.5F, seed + 23};
  const Field relief = Painted(sheet, [&](Spot p) {
    const Tray& at = trays(p);
    const float d = Abs(at.toSeam) / 15.0F;
    const float seam = d < 1.0F ? Sqrt(1.0F - d * d) : 0.0F;
    const float lap =
        3.0F * SmoothRamp(0.0F, 5.0F, at.below) - 3.0F * Ramp(0.0F, 1150.0F, at.below);
    return 15.0F * seam + lap + 13.0F * buckle(p) + 0.35F * powder(p);
  });
  const Field light = Relief(sheet, relief, 0.55F);
  Field tone = Painted(sheet, [&](Spot p) {
    const Tray& at = trays(p);
    const float own = 0.22F * (Unit(at.hash) - 0.5F);
    const float bare = weather(p.fx, p.fy * 0.7F) + 0.22F * blotch(p) + 0.12F * powder(p) + own +
                       0.75F * (0.28F - p.fy / height) - 0.5F * pale(p);
    float value = 0.66F + 0.09F * blotch(p) + 0.08F * powder(p) + 0.14F * weather(p) + own * 0.5F;
    value = Mix(value, 0.27F + 0.06F * blotch(p) + 0.03F * powder(p),
                SoftThreshold(bare, 0.14F, 0.30F));
    value = Mix(value, 0.92F + 0.06F * powder(p), 0.72F * pale(p));
    value *= 1.0F - 0.62F * dark(p);
    value *= 1.0F - 0.45F * SmoothRamp(34.0F, 12.0F, at.toSeam) * (at.toSeam > 0.0F ? 1.0F : 0.0F);
    value *= 1.0F - 0.55F * SmoothRamp(9.0F, 0.0F, at.below);
    return value + 0.30F * light(p);
  });
  Soften(sheet, tone, 0.30F);
  StretchTo(sheet, tone, 0.004F, 0.997F);
  return tone;
}

const RegisteredTexture kCopperRoof(TextureRecipe{
    .name = "Copper_Roof",
    .set = TextureSet::kForge,
    .effects = {"Metals", "Weathered/Aged", "Erosion (Light)"},
    .seed = 3013,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
