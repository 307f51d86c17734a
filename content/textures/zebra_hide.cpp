// Zebra_Hide: the flank of a zebra. Stripes run down from the back, fork like
// tuning forks, lean over towards the hind leg, and a faint shadow stripe lies
// in some of the white ones.
//
// What makes it read as that: no stripe is as broad as its neighbour, forks
// without any order, and edges made of hair: each hair has the colour of the
// place where it grows.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/fur.h"
#include "toolbox/grown_pattern.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const GrownPattern stripes(sheet,
                             {.spacing = 186.0F, .aligned = true, .rounds = 20, .seed = seed});
  const Warp sway{46.0F, {520.0F, 3, 0.5F, seed + 5}};
  const Fbm lie{620.0F, 2, 0.5F, seed + 10};
  const Fbm tuft{52.0F, 3, 0.55F, seed + 14};
  const Fbm soil{380.0F, 5, 0.56F, seed + 18};
  const Fbm swell{330.0F, 3, 0.5F, seed + 24};

  const auto coat = [&](float x, float y) {
    const Spot q = sway(Spot{0, 0, x, y});
    // Lean: upright at the shoulder, slanting at the haunch.
    const float share = q.fx / width;
    return stripes.At(q.fx - 0.62F * q.fy * share * share, q.fy);
  };
  const auto heading = [&](float x, float y) { return 0.18F + 0.55F * lie(x, y); };
  const Fur fur(sheet,
                {.length = 25.0F,
                 .radius = 1.5F,
                 .spacing = 2.9F,
                 .unruly = 0.15F,
                 .bend = 3.0F,
                 .seed = seed + 30},
                heading);
  const Field locks = Painted(sheet, [&](Spot p) { return tuft(p.fx, p.fy * 0.55F); });
  Field tone = Painted(sheet, [&](Spot p) {
    const FurSpot& hair = fur(p);
    const float stripe = coat(hair.rootX, hair.rootY) + 0.10F * (Unit(Hash(hair.hash + 1)) - 0.5F);
    const float dark = SoftThreshold(stripe, -0.02F, 0.16F);
    const float shadow = SoftThreshold(stripe, -0.93F, 0.10F) > 0.5F ? 0.0F : 0.16F;
    const float round = 1.0F - 0.30F * hair.across * hair.across + 0.22F * hair.across;
    const float luck = Unit(Hash(hair.hash + 2)) - 0.5F;
    const float white = 0.86F - shadow + 0.10F * soil(p) + 0.20F * luck;
    const float black = 0.12F + 0.10F * luck * luck + 0.05F * luck;
    float value = Mix(white, black, dark);
    value *= (0.78F + 0.30F * hair.along) * round;
    value *= 1.0F + 0.16F * locks(p) + 0.14F * swell(p);
    return value + 0.05F * dark * SmoothRamp(0.5F, 1.0F, hair.along) * round;
  });
  Soften(sheet, tone, 0.5F);
  StretchTo(sheet, tone, 0.004F, 0.995F);
  return tone;
}

const RegisteredTexture kZebraHide(TextureRecipe{.name = "Zebra_Hide",
                                                 .set = TextureSet::kHidesAndCloth,
                                                 .effects = {"Animal Patterns"},
                                                 .seed = 2170,
                                                 .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
