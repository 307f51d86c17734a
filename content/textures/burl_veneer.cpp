// Burl_Veneer: walnut burl from the dashboard of an old saloon. The grain has no
// direction: it streams about crowds of dormant buds, each a dark pin with an
// eye about it, and what light does to the fibres depends on where they point.
//
// What makes it read as that: streams that split about the eyes and join again,
// silk that changes from bright to dark along each bend, pins in clusters.
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
  const Warp swirl{95.0F, {430.0F, 2, 0.5F, seed + 1}};
  const Warp curl{10.0F, {90.0F, 2, 0.5F, seed + 2}};
  const Cells buds{66.0F, 1.0F, seed + 3};
  const Fbm crowd{320.0F, 3, 0.55F, seed + 4};
  const Fbm streams{300.0F, 3, 0.45F, seed + 5};
  struct Bud {
    float eye, pin;
  };
  const Survey<Bud> eyes(sheet, [&](Spot p) {
    const Spot q = curl(p);
    const CellSample cell = buds(q.fx, q.fy);
    // Buds keep company: alone they are rare.
    const float there = Unit(cell.hash) < 0.30F + 1.5F * crowd(p) ? 1.0F : 0.0F;
    const float size = 8.0F + 15.0F * Unit(Hash(cell.hash + 1));
    const float far = cell.f1 * buds.period / size;
    const float reach = SmoothRamp(1.0F, 0.4F, cell.f1);  // gone where another bud is nearest
    return Bud{there * reach / (1.0F + far * far), there * SmoothRamp(0.30F, 0.12F, far)};
  });
  // Fibres run along the contours of this field.
  const Field flow = Painted(sheet, [&](Spot p) {
    const Spot q = curl(swirl(p));
    return 15.0F * streams(q.fx, q.fy) + 3.4F * eyes(p).eye;
  });
  Field smooth = flow;
  Blur(sheet, smooth, 8.0F);
  const Fbm dark{300.0F, 5, 0.56F, seed + 10};
  const Fbm pore{2.8F, 2, 0.7F, seed + 11};
  Field tone = Painted(sheet, [&](Spot p) {
    const float f = flow(p);
    const Slope slope = SlopeAt(smooth, p.x, p.y);
    const float steep = Length(slope.x, slope.y);
    // Silk: how far the fibres point at the window.
    const float inverse = 1.0F / Max(steep, 0.004F);
    const float cx = slope.x * inverse;
    const float cy = slope.y * inverse;
    const float silk =
        (0.8F * cx * cx - 0.8F * cy * cy + 1.2F * cx * cy) * SmoothRamp(0.0F, 0.03F, steep);
    const float t = Fraction(f);
    const float year = (t < 0.8F ? t / 0.8F : SmoothRamp(1.0F, 0.8F, t)) *
                       (0.35F + 0.65F * Unit(HashAt(FloorInt(f), 2, seed)));
    const float line =
        0.5F * LineNoise(f * 5.3F, seed + 12) + 0.5F * LineNoise(f * 13.7F, seed + 13);
    // Lines too close to be told apart would flicker.
    const float clear = SmoothRamp(0.16F, 0.05F, steep);
    float value = 0.54F + 0.30F * dark(p) + 0.085F * silk - 0.22F * (year - 0.35F) +
                  0.17F * clear * line + 0.05F * pore(p);
    value -= 0.20F * SmoothRamp(0.25F, 0.8F, eyes(p).eye);
    return Mix(value, 0.05F, 0.85F * eyes(p).pin);
  });
  Soften(sheet, tone, 0.25F);
  StretchTo(sheet, tone, 0.004F, 0.996F);
  return tone;
}

const RegisteredTexture kBurlVeneer(TextureRecipe{.name = "Burl_Veneer",
                                                  .set = TextureSet::kTimberYard,
                                                  .effects = {"Woods", "Texture (Light)"},
                                                  .seed = 3008,
                                                  .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
