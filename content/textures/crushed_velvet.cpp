// Crushed_Velvet: a theatre curtain's velvet that was sat on, brushed against and
// never steamed.
//
// What makes it read as that: pile that leans in patches, each of one way, so
// that a patch is light as a whole and its neighbour dark; soft borders on one
// side and a bright crest on the other; the fine grain of pile throughout.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Warp crush{170.0F, {460.0F, 2, 0.5F, seed + 1}};
  const Fbm fold{330.0F, 2, 0.4F, seed + 2};
  const Fbm small{120.0F, 2, 0.4F, seed + 3};
  const Field lie = Painted(sheet, [&](Spot p) {
    const Spot q = crush(p);
    // Crests are sharp, hollows round: pile parts along a line.
    const float n = fold(q.fx, q.fy * 0.55F);
    const float m = small(q.fx + 40.0F * n, q.fy * 0.6F);
    return Sqrt(n * n + 0.0016F) + 0.16F * Sqrt(m * m + 0.0030F);
  });
  Field soft = lie;
  Blur(sheet, soft, 5.0F);
  const Field sheen = Relief(sheet, soft, 0.0050F);
  const Fbm pile{3.1F, 2, 0.7F, seed + 4};
  const Fbm tuft{11.0F, 3, 0.6F, seed + 5};
  const Fbm deep{420.0F, 3, 0.5F, seed + 6};
  Field tone = Painted(sheet, [&](Spot p) {
    const float s = sheen(p);
    const float lit = s * (1.5F - 0.5F * s * s);
    const float crest = SmoothRamp(0.11F, 0.03F, lie(p));
    const float streak = pile(p.fx, p.fy * 0.55F);
    return 0.42F + 0.36F * lit + 0.16F * crest + 0.08F * deep(p) +
           (0.09F + 0.06F * Abs(lit)) * streak + 0.05F * tuft(p.fx, p.fy * 0.6F);
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.004F, 0.996F);
  return tone;
}

const RegisteredTexture kCrushedVelvet(TextureRecipe{.name = "Crushed_Velvet",
                                                     .set = TextureSet::kHidesAndCloth,
                                                     .effects = {"Fabrics", "Texture (Medium)"},
                                                     .seed = 1009,
                                                     .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
