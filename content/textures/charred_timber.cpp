// Charred_Timber: a beam that burnt from one end. There it is char, cracked
// crosswise and lengthwise into cushions with a silky lustre, ash in the
// cracks; then comes a scorched border, and wood that only saw the smoke.
//
// What makes it read as that: cushions in rows along the grain, larger where
// the fire stood longest; the way from black to brown to pale over a front that
// ran ahead along the fibres.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

struct Cushion {
  float edge;  // pixels from a crack
  float fine;  // pixels from a crack of the second fire, which split cushions again
  float own;   // 0..1, one for each
};

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);

  const Fbm sway{500.0F, 3, 0.5F, seed + 1};
  const Fbm bands{24.0F, 3, 0.6F, seed + 2};
  const Fbm fibre{3.4F, 3, 0.7F, seed + 3};
  const Field grain = Painted(sheet, [&](Spot p) {
    const float y = p.fy + 30.0F * sway(p.fx * 0.4F, p.fy);
    return 0.6F * bands(p.fx * 0.03F, y) + 0.5F * fibre(p.fx * 0.03F, y);
  });
  // How far the fire got: above 0 char, above -0.3 scorched.
  const Fbm front{330.0F, 5, 0.58F, seed + 10};
  const Field heat = Painted(sheet, [&](Spot p) {
    const float across = 0.80F * p.fx / width + 0.45F * (1.0F - p.fy / height);
    return 1.15F - 1.55F * across + 0.55F * front(p.fx * 0.30F, p.fy);
  });
  const Field fire = Painted(sheet, [&](Spot p) { return heat(p) + 0.14F * grain(p); });

  const Warp crooked{11.0F, {46.0F, 3, 0.55F, seed + 20}};
  const Warp leaning{60.0F, {420.0F, 2, 0.5F, seed + 21}};
  const Cells large{98.0F, 0.78F, seed + 22};
  const Cells small{34.0F, 0.9F, seed + 23};
  const Survey<Cushion> cushions(sheet, [&](Spot p) {
    const float burnt = heat(p);
    if (burnt < -0.36F) return Cushion{99.0F, 99.0F, 0.5F};
    const Spot q = crooked(leaning(p));
    const CellSample whole = large.WithEdge(q.fx * 0.66F, q.fy);
    const CellSample part = small.WithEdge(q.fx * 0.66F, q.fy);
    return Cushion{whole.edge * large.period, part.edge * small.period, whole.id};
  });
  const Field grit = Painted(sheet, Fbm{4.0F, 3, 0.7F, seed + 30});
  const Fbm open{60.0F, 3, 0.6F, seed + 31};
  const Field gap = Painted(sheet, [&](Spot p) {
    const float burnt = Clamp01(heat(p) + 0.18F);
    const float wide = (1.2F + 6.0F * burnt) * (1.0F + 0.9F * open(p));
    const float again =
        wide * Clamp01(0.35F - 0.5F * heat(p) + 1.5F * open(p.fx * 0.4F, p.fy * 0.4F));
    return Max(SmoothRamp(wide + 1.8F, 0.35F * wide, cushions(p).edge),
               Min(1.0F, again) * SmoothRamp(again + 1.4F, 0.3F * again, cushions(p).fine)) *
           SmoothRamp(-0.22F, 0.06F, heat(p));
  });
  const Field relief = Painted(sheet, [&](Spot p) {
    const float char01 = SmoothRamp(-0.15F, 0.25F, heat(p));
    const float round = Min(cushions(p).edge, 26.0F) / 26.0F;
    return char01 * (5.0F * Sqrt(round) + 2.0F * cushions(p).own) - 1.5F * gap(p) +
           (0.34F + 0.30F * char01) * grain(p) + 0.10F * grit(p);
  });
  const Field light = Relief(sheet, relief, 0.34F);

  const Fbm ashes{150.0F, 6, 0.62F, seed + 40};
  const Fbm smoke{420.0F, 4, 0.55F, seed + 41};
  Field tone = Painted(sheet, [&](Spot p) {
    const float burnt = fire(p);
    const float wood = 0.88F + 0.14F * grain(p) + 0.16F * smoke(p.fx * 0.3F, p.fy) - 0.04F;
    const float scorch = 0.34F + 0.16F * grain(p) + 0.08F * smoke(p);
    const float black = 0.19F + 0.07F * grain(p) + 0.05F * (cushions(p).own - 0.5F);
    float value = Mix(wood, scorch, SmoothRamp(-0.52F, -0.10F, burnt));
    const float char01 = SmoothRamp(-0.12F, 0.10F, burnt);
    value = Mix(value, black, char01);
    value += (0.09F + 0.21F * char01) * light(p);
    value *= 1.0F - 0.9F * gap(p);
    // Ash stays in hollows and lies on what burnt first.
    const float ash = SoftThreshold(ashes(p) + 0.35F * gap(p) + 0.25F * burnt, 0.62F, 0.30F) *
                      SmoothRamp(0.1F, 0.5F, burnt);
    return Mix(value, 0.66F + 0.14F * grit(p) + 0.18F * light(p), 0.80F * ash);
  });
  Soften(sheet, tone, 0.30F);
  StretchTo(sheet, tone, 0.004F, 0.995F);
  return tone;
}

const RegisteredTexture kCharredTimber(TextureRecipe{
    .name = "Charred_Timber",
    .set = TextureSet::kTimberYard,
    .effects = {"Woods", "Distress (Heavy)", "Texture (Heavy)", "Erosion (Heavy)"},
    .seed = 3003,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
