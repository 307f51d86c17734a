// Giraffe_Coat: the shoulder of a giraffe. Dark patches like torn leaves, set
// close, with a net of pale hair between them.
//
// What makes it read as that: a net of uneven breadth, patches lobed and cut in
// from the rim, darker in the middle than along the border, and short hair that
// lies across all of it.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/fur.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Warp torn{24.0F, {70.0F, 4, 0.55F, seed}};
  const Warp grown{60.0F, {380.0F, 2, 0.5F, seed + 6}};
  const Cells patches{236.0F, 0.86F, seed + 10};
  const Cells lobes{92.0F, 1.0F, seed + 11};
  const Fbm net{300.0F, 3, 0.5F, seed + 14};
  const Fbm lie{600.0F, 2, 0.5F, seed + 18};
  const Fbm tuft{46.0F, 3, 0.55F, seed + 22};
  const Fbm age{420.0F, 4, 0.52F, seed + 26};

  // 0 in the net, up to 1 in the middle of a patch; and how dark it is.
  const Field pale = Painted(sheet, [&](Spot p) { return net(p); });
  const Field inside = Painted(sheet, [&](Spot p) {
    const Spot q = torn(grown(p));
    const CellSample patch = patches.WithEdge(q.fx, q.fy * 0.92F);
    const CellSample lobe = lobes.WithEdge(q.fx, q.fy);
    const float pixels = patch.edge * 236.0F;
    // Cuts run in from the rim and close before the middle.
    const float cut = (12.0F + 16.0F * lobe.id) * SmoothRamp(0.075F, 0.0F, lobe.edge) *
                      SmoothRamp(48.0F, 12.0F, pixels);
    return pixels - 11.0F - 9.0F * pale(p) - cut;
  });
  const Field shade = Painted(sheet, [&](Spot p) {
    const Spot q = grown(p);
    return patches(q.fx, q.fy * 0.92F).id;
  });
  const auto heading = [&](float x, float y) { return -0.22F + 0.5F * lie(x, y); };
  const Fur fur(sheet,
                {.length = 18.0F,
                 .radius = 1.3F,
                 .spacing = 2.6F,
                 .unruly = 0.14F,
                 .bend = 2.0F,
                 .seed = seed + 30},
                heading);
  const Field locks = Painted(sheet, [&](Spot p) { return tuft(p.fx, p.fy * 0.6F); });
  const Field years = Painted(sheet, [&](Spot p) { return age(p); });
  const float right = static_cast<float>(sheet.width - 1);
  const float bottom = static_cast<float>(sheet.height - 1);
  Field tone = Painted(sheet, [&](Spot p) {
    const FurSpot& hair = fur(p);
    const float x = Clamp(hair.rootX, 0.0F, right);
    const float y = Clamp(hair.rootY, 0.0F, bottom);
    const float luck = Unit(Hash(hair.hash + 2)) - 0.5F;
    const float in = inside.Sample(x, y) + 3.0F * luck;
    const float cover = SmoothRamp(-3.0F, 5.0F, in);
    const float heart = SmoothRamp(8.0F, 95.0F, in);
    const float brown =
        0.48F + 0.14F * (shade(p) - 0.5F) - 0.22F * heart + 0.08F * years(p) + 0.14F * luck;
    const float cream = 0.90F + 0.05F * years(p) + 0.16F * luck;
    const float round = 1.0F - 0.28F * hair.across * hair.across + 0.22F * hair.across;
    const float value = Mix(cream, brown, cover) * (0.80F + 0.26F * hair.along) * round;
    return value * (1.0F + 0.16F * locks(p));
  });
  Soften(sheet, tone, 0.5F);
  StretchTo(sheet, tone, 0.002F, 0.995F);
  return tone;
}

const RegisteredTexture kGiraffeCoat(TextureRecipe{.name = "Giraffe_Coat",
                                                   .set = TextureSet::kHidesAndCloth,
                                                   .effects = {"Animal Patterns"},
                                                   .seed = 2230,
                                                   .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
