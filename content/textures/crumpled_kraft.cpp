// Crumpled_Kraft: wrapping paper that was crushed into a ball and smoothed out.
//
// What makes it read as that: flat faces between sharp creases that meet in
// points, large ones broken into small ones; creases are rubbed pale where they
// stand up; below all that lie the faint ribs of machine-made paper.
#include "builder/texture_recipe.h"
#include "toolbox/facets.h"
#include "toolbox/filters.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Facets large{430.0F, 0.75F, seed};
  const Facets middle{210.0F, 0.78F, seed + 1};
  const Facets small{98.0F, 0.78F, seed + 2};
  const Facets fine{44.0F, 0.78F, seed + 3};
  const Warp bent{26.0F, {260.0F, 3, 0.55F, seed + 4}};
  const Fbm crushed{420.0F, 3, 0.5F, seed + 5};
  Field height = Painted(sheet, [&](Spot p) {
    const Spot q = bent(p);
    const float hard = Clamp01(0.55F + 1.2F * crushed(p));
    return 2.2F * large(q.fx, q.fy) +
           1.15F * middle(q.fx * 0.8F + q.fy * 0.6F, q.fy * 0.8F - q.fx * 0.6F) +
           (0.25F + 0.40F * hard) * small(q.fx * 0.6F - q.fy * 0.8F, q.fy * 0.6F + q.fx * 0.8F) +
           0.22F * hard * fine(q.fx * 0.9F + q.fy * 0.43F, q.fy * 0.9F - q.fx * 0.43F);
  });
  // Paper has a thickness: no crease is sharper than that.
  Blur(sheet, height, 1.3F);
  const Field light = Relief(sheet, height, 0.020F);
  Field even = height;
  Blur(sheet, even, 5.0F);
  const Fbm fibre{3.2F, 3, 0.7F, seed + 6};
  const Fbm ribs{5.0F, 2, 0.5F, seed + 7};
  const Fbm cloud{34.0F, 4, 0.6F, seed + 8};
  const Fbm rub{70.0F, 4, 0.6F, seed + 9};
  Field tone = Painted(sheet, [&](Spot p) {
    const float ridge = height(p) - even(p);
    const float worn = SmoothRamp(0.018F, 0.075F, ridge) * Clamp01(0.65F + 0.8F * rub(p));
    const float valley = SmoothRamp(0.015F, 0.08F, -ridge);
    return 0.50F + 0.34F * light(p) + 0.34F * worn - 0.20F * valley + 0.05F * fibre(p) +
           0.04F * ribs(p.fx * 0.04F, p.fy) + 0.05F * cloud(p);
  });
  Soften(sheet, tone, 0.3F);
  StretchTo(sheet, tone, 0.004F, 0.997F);
  return tone;
}

const RegisteredTexture kCrumpledKraft(TextureRecipe{
    .name = "Crumpled_Kraft",
    .set = TextureSet::kPaperDrawer,
    .effects = {"Papers", "Texture (Heavy)", "Distress (Medium)"},
    .seed = 1010,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
