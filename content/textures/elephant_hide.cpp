// Elephant_Hide: the flank of an old elephant. Deep folds sag across it, each
// patch between them is cut by smaller wrinkles and those again, down to a
// cobble of warts; dust lies on the heights, mud in the depths.
//
// What makes it read as that: wrinkles of three depths that respect each other,
// folds that hang and run on for long, sparse bristles.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Warp sag{90.0F, {520.0F, 3, 0.5F, seed}};
  const Warp crumple{11.0F, {54.0F, 4, 0.56F, seed + 5}};
  const Cells folds{250.0F, 0.95F, seed + 12};
  const Cells wrinkles{84.0F, 1.0F, seed + 13};
  const Cells cobble{24.0F, 0.95F, seed + 14};
  const Fbm age{360.0F, 3, 0.5F, seed + 16};
  const Fbm dust{4.0F, 3, 0.72F, seed + 20};
  const Fbm mud{260.0F, 5, 0.56F, seed + 24};
  const Fbm lump{44.0F, 3, 0.55F, seed + 30};

  const Field grit = Painted(sheet, [&](Spot p) { return dust(p); });
  const Field old = Painted(sheet, [&](Spot p) { return age(p); });
  struct Skin {
    float fold, wrinkle, cobble;  // pixels to each
    float luck;
  };
  const Survey<Skin> skins(sheet, [&](Spot p) {
    const Spot q = crumple(sag(p));
    const CellSample a = folds.WithEdge(q.fx * 0.52F, q.fy * 1.25F);
    const CellSample b = wrinkles.WithEdge(q.fx * 0.80F, q.fy * 1.10F);
    const CellSample c = cobble.WithEdge(q.fx, q.fy);
    // The nearest point of all is missed now and then: never below 0.
    return Skin{Max(a.edge, 0.0F) * 250.0F, Max(b.edge, 0.0F) * 84.0F, Max(c.edge, 0.0F) * 24.0F,
                c.id};
  });
  const Field height = Painted(sheet, [&](Spot p) {
    const Skin& s = skins(p);
    const float o = old(p);
    const float deep = Exp(-s.fold / (9.0F + 7.0F * o)) * (0.8F + 0.5F * o);
    const float middle = Exp(-s.wrinkle / (4.2F + 2.0F * o)) * (0.7F + 0.7F * o);
    const float bump = SmoothRamp(0.0F, 6.5F, s.cobble) * (0.6F + 0.6F * s.luck);
    return 2.8F * lump(p) + 0.55F * Sqrt(s.fold + 1.0F) + 0.5F * Sqrt(s.wrinkle + 1.0F) +
           2.1F * bump - 8.5F * deep - 4.6F * middle + 0.28F * grit(p);
  });
  const Field light = Relief(sheet, height, 0.62F);
  Field around = height;
  Blur(sheet, around, 9.0F);
  StrokeSet bristles;
  Dice dice(seed + 50);
  const int count = FloorInt(150.0F * static_cast<float>(sheet.width) *
                             static_cast<float>(sheet.height) / (2048.0F * 1536.0F));
  for (int i = 0; i < count; ++i) {
    Walk hair;
    hair.x = dice.Between(0.0F, static_cast<float>(sheet.width));
    hair.y = dice.Between(0.0F, static_cast<float>(sheet.height));
    hair.length = dice.Between(24.0F, 74.0F);
    hair.heading = dice.Around(1.7F, 0.5F);
    hair.bend = dice.Around(0.0F, 0.9F);
    hair.radius = dice.Between(0.8F, 1.3F);
    hair.taper = 0.4F;
    hair.seed = dice.Word();
    AddWalk(bristles, hair);
  }
  Field bristle(sheet);
  bristles.Draw(sheet, bristle);
  Field tone = Painted(sheet, [&](Spot p) {
    const float above = height(p) - around(p);
    float value = 0.50F + 0.13F * mud(p) + 0.05F * grit(p) + 0.05F * lump(p);
    value += 0.065F * Clamp(above, -4.0F, 2.5F);
    value += 0.36F * light(p);
    value *= 1.0F - 0.50F * SmoothRamp(1.0F, 6.5F, -above);
    return value * (1.0F - 0.7F * bristle(p));
  });
  Soften(sheet, tone, 0.4F);
  StretchTo(sheet, tone, 0.003F, 0.997F);
  return tone;
}

const RegisteredTexture kElephantHide(TextureRecipe{
    .name = "Elephant_Hide",
    .set = TextureSet::kHidesAndCloth,
    .effects = {"Animal Patterns", "Leather", "Texture (Heavy)"},
    .seed = 2210,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
