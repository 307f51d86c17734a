// Rising_Damp: the foot of a whitewashed cellar wall. Water climbs in it, leaves
// line above line of salt where it dried, and below the last line the plaster
// has gone soft, blown off and shows the stone.
//
// What makes it read as that: clean at the top and ruined at the bottom; tide
// lines that follow one another without crossing; a fur of salt along them;
// losses that grow towards the floor.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/peel.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float tall = static_cast<float>(sheet.height);
  const Fbm hill{620.0F, 4, 0.5F, seed};
  const Fbm ragged{64.0F, 4, 0.58F, seed + 6};
  const Fbm fine{3.2F, 3, 0.72F, seed + 12};
  const Fbm lump{26.0F, 4, 0.62F, seed + 16};
  const Fbm blown{190.0F, 5, 0.56F, seed + 20};
  const Fbm cloud{380.0F, 5, 0.55F, seed + 26};
  const Cells stones{150.0F, 0.9F, seed + 32};
  const Warp crooked{16.0F, {60.0F, 4, 0.58F, seed + 36}};
  const Spots salt{9.0F, 0.6F, 0.8F, 4.0F, seed + 44};

  const Field veil = Painted(sheet, [&](Spot p) { return cloud(p); });
  const Field hollow = Painted(sheet, [&](Spot p) { return blown(p); });
  const Field rough = Painted(sheet, [&](Spot p) { return lump(p); });
  const Field tooth = Painted(sheet, [&](Spot p) { return ragged(p); });
  // How far the water came, in shares of the height: below 0 dry.
  const Field wet = Painted(sheet, [&](Spot p) {
    return p.fy / tall - 0.46F + 0.17F * hill(p.fx, p.fy * 0.35F) + 0.022F * tooth(p);
  });
  const Field loss = Painted(sheet, [&](Spot p) {
    return 1.25F * (wet(p) - 0.26F) + 0.50F * hollow(p) + 0.10F * tooth(p) + 0.05F * rough(p);
  });
  const PeelingCoat wash =
      Peel(sheet, loss, {.at = -0.12F, .softness = 0.035F, .curl = 6.0F, .thickness = 2.5F});
  const PeelingCoat plaster =
      Peel(sheet, loss, {.at = 0.14F, .softness = 0.03F, .curl = 5.0F, .thickness = 7.0F});
  const Field stone = Painted(sheet, [&](Spot p) {
    if (plaster.cover(p) >= 1.0F) return 0.0F;
    const Spot q = crooked(p);
    return stones.WithEdge(q.fx * 0.75F, q.fy * 1.3F).edge * 150.0F;
  });
  const Field height = Painted(sheet, [&](Spot p) {
    const float bare = 3.0F * SmoothRamp(4.0F, 20.0F, stone(p)) + 2.2F * rough(p) + 0.5F * fine(p);
    const float coat = 5.0F + 0.8F * rough(p) * SmoothRamp(-0.1F, 0.3F, wet(p)) + 0.10F * fine(p) +
                       0.9F * wash.cover(p) + 1.6F * wash.lift(p);
    return Mix(bare, coat + 0.5F * hollow(p), plaster.cover(p));
  });
  const Field light = Relief(sheet, height, 0.5F);
  Field tone = Painted(sheet, [&](Spot p) {
    const float w = wet(p);
    const float c = veil(p);
    // Lines at the heights where the water stood, each with its bleed below.
    float stain = 0.0F;
    float fur = 0.0F;
    for (int i = 0; i < 6 && w > -0.12F; ++i) {
      const float at = -0.02F + 0.075F * static_cast<float>(i) + 0.03F * Unit(HashAt(i, 1, seed));
      const float d = (w - at) * tall + 9.0F * tooth(p);
      const float power = (0.35F + 0.65F * Unit(HashAt(i, 2, seed))) *
                          SmoothRamp(-0.5F, 0.3F, c + 0.4F * Unit(HashAt(i, 3, seed)) - 0.2F);
      stain = Max(stain, power * (d > 0.0F ? Exp(-d / 46.0F) : Exp(d / 4.0F)));
      fur = Max(fur, power * Exp(-Square((d + 3.0F) / 11.0F)));
    }
    const float soaked = SmoothRamp(-0.01F, 0.45F, w);
    float face = 0.95F + 0.04F * c - 0.22F * soaked * (0.9F + 0.5F * c);
    face *= 1.0F - 0.36F * stain;
    const float under = 0.62F + 0.10F * rough(p) + 0.10F * c + 0.04F * fine(p);
    face = Mix(under * (1.0F - 0.3F * wash.shadow(p)), face, wash.cover(p));
    float bare = 0.32F + 0.09F * rough(p) + 0.08F * c + 0.05F * fine(p);
    bare = Mix(0.50F + 0.08F * rough(p), bare, SmoothRamp(2.0F, 9.0F, stone(p)));
    bare *= 1.0F - 0.55F * plaster.shadow(p);
    float value = Mix(bare, face, plaster.cover(p)) + 0.26F * light(p);
    const float crust = fur * SmoothRamp(0.0F, 0.5F, salt(p).depth + 0.5F * rough(p));
    return Mix(value, 1.0F, 0.65F * Clamp01(crust));
  });
  Soften(sheet, tone, 0.4F);
  StretchTo(sheet, tone, 0.002F, 0.985F);
  return tone;
}

const RegisteredTexture kRisingDamp(TextureRecipe{
    .name = "Rising_Damp",
    .set = TextureSet::kWallsAndSigns,
    .effects = {"Erosion (Medium)", "Distress (Medium)", "Weathered/Aged"},
    .seed = 2160,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
