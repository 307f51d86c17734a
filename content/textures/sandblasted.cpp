// Sandblasted: enamel that stood in driving sand. The wind came from one side:
// there the coat is peppered with pits down to nothing, behind a few lee
// streaks it is nearly whole.
//
// What makes it read as that: pits of every size with a tail downwind, thick on
// one side and thinning out across the picture; gusts that left bands.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float tall = static_cast<float>(sheet.height);
  const Fbm gusts{240.0F, 5, 0.55F, seed};
  const Fbm cloud{420.0F, 4, 0.52F, seed + 8};
  const Fbm grit{4.0F, 3, 0.72F, seed + 14};
  const Spots large{58.0F, 0.30F, 4.0F, 15.0F, seed + 20};
  const Spots middle{21.0F, 0.55F, 1.5F, 6.5F, seed + 21};
  const Spots small{8.0F, 0.70F, 0.6F, 2.6F, seed + 22};
  const Spots powder{4.6F, 0.80F, 0.7F, 2.2F, seed + 23};
  const Warp nick{2.2F, {7.0F, 2, 0.6F, seed + 26}};

  // The wind blows to the right and a little down.
  const Field force = Painted(sheet, [&](Spot p) {
    const float along = 0.95F * p.fx + 0.30F * p.fy;
    const float across = 0.95F * p.fy - 0.30F * p.fx;
    const float side = 1.0F - (p.fx / width * 0.85F + p.fy / tall * 0.15F);
    return 1.05F * side * side + 0.55F * gusts(along * 0.16F, across) + 0.35F * cloud(p) - 0.06F;
  });
  const Field grain = Painted(sheet, [&](Spot p) { return grit(p); });
  const auto pitAt = [&](const Spots& spots, const Spot& p, float f, float reach) {
    // Drawn out downwind: three looks back along the wind, fainter each time.
    float deep = 0.0F;
    for (int i = 0; i < 3; ++i) {
      const float back = static_cast<float>(i) * reach;
      const Spots::Hit hit = spots(p.fx - 0.95F * back, p.fy - 0.30F * back);
      const float present = SmoothRamp(0.0F, 0.16F, f - Unit(Hash(hit.hash + 1)) * 0.95F + 0.02F);
      const float size = 0.25F * static_cast<float>(i);
      deep = Max(deep, present * SmoothRamp(0.04F + size, 0.34F + size, hit.depth) *
                           (1.0F - 0.25F * static_cast<float>(i)));
    }
    return deep;
  };
  Field tone = Painted(sheet, [&](Spot p) {
    const float f = force(p);
    const Spot q = nick(p);
    const float pits = Max(Max(pitAt(large, q, f * 0.75F, 7.0F), pitAt(middle, q, f * 0.95F, 3.2F)),
                           0.9F * pitAt(small, q, f * 1.15F, 1.4F));
    // Where it hit hardest, what is left between the pits is matt too.
    const Spots::Hit dust = powder(p);
    const float frost =
        SmoothRamp(0.0F, 0.4F, dust.depth) * SmoothRamp(0.0F, 0.3F, f - 0.95F * Unit(dust.hash));
    const float veil = 0.07F * SmoothRamp(-0.2F, 0.8F, f);
    return 1.0F - Clamp01(Max(pits * (0.90F + 0.25F * grain(p)), 0.85F * frost) + veil);
  });
  Soften(sheet, tone, 0.5F);
  return tone;
}

const RegisteredTexture kSandblasted(TextureRecipe{
    .name = "Sandblasted",
    .set = TextureSet::kEssentials,
    .effects = {"Erosion (Light)", "Distress (Light)"},
    .seed = 2290,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
