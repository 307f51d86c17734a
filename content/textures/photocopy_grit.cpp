// Photocopy_Grit: a copy of a copy of a copy. Toner is dark; blank paper leaves the
// picture.
//
// What makes it read as that: the lid stood open, so one side is black with a
// ragged slope; pepper of toner in clumps; lines of dirt on the glass that run
// the way of the carriage; marks of a worn roller that come back at each turn
// of it, weaker every time; white dropouts in the black.
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

Field Dirt(const Sheet& sheet) {
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  StrokeSet set;
  for (int i = 0; i < 17; ++i) {
    Dice dice(sheet.seed + 1, i);
    AddWalk(set, {.x = dice.Unit() * w,
                  .y = dice.Chance(0.7F) ? -20.0F : dice.Unit() * h,
                  .length = dice.Between(0.3F, 1.2F) * h,
                  .heading = 0.5F * kPi + 0.006F,
                  .radius = dice.Between(0.6F, 2.4F),
                  .strength = dice.Between(0.4F, 0.9F),
                  .taper = 0.1F,
                  .skip = 1.1F,
                  .skipPeriod = 60.0F,
                  .step = 12.0F,
                  .seed = dice.Word()});
  }
  // The roller: a nick, its scuff and a bite, once for each turn.
  for (int turn = 0; turn < 5; ++turn) {
    Dice dice(sheet.seed + 2, turn);
    const float y = 90.0F + 346.0F * static_cast<float>(turn) + dice.Around(0.0F, 6.0F);
    const float weaker = 1.0F - 0.17F * static_cast<float>(turn);
    for (int k = 0; k < 14; ++k) {
      const float x = 0.31F * w + dice.Around(0.0F, 46.0F);
      const float at = y + dice.Around(0.0F, 13.0F);
      const StrokePoint points[] = {
          {x, at, dice.Between(1.0F, 4.6F), weaker},
          {x + dice.Around(0.0F, 9.0F), at + dice.Around(0.0F, 5.0F), 1.2F, weaker}};
      set.Add(points);
    }
  }
  Field dirt(sheet);
  set.Draw(sheet, dirt, {.ragged = 1.6F, .raggedPeriod = 4.0F, .seed = sheet.seed + 3});
  return dirt;
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  const Field dirt = Dirt(sheet);
  const Fbm pepper{4.4F, 3, 0.75F, seed + 4};
  const Fbm clump{26.0F, 4, 0.65F, seed + 5};
  const Fbm drum{70.0F, 4, 0.6F, seed + 6};
  const Fbm slope{150.0F, 4, 0.55F, seed + 7};
  const Fbm band{90.0F, 3, 0.6F, seed + 8};
  const Spots dropouts{38.0F, 0.16F, 1.0F, 8.0F, seed + 9};
  const Warp torn{5.0F, {9.0F, 3, 0.65F, seed + 10}};
  Field tone = Painted(sheet, [&](Spot p) {
    const float bow = 26.0F * slope(p);
    // How much light did not come back: the open lid at the right, the gutter
    // of the book at the left, the sheet's own edges.
    const float lid = SmoothRamp(0.83F * w, 1.02F * w, p.fx + 1.3F * bow + 0.05F * p.fy);
    const float below = SmoothRamp(h - 120.0F, h - 10.0F, p.fy + 0.8F * bow - 0.03F * p.fx);
    const float gutter = 0.75F * SmoothRamp(150.0F, -20.0F, p.fx + 0.6F * bow);
    const float dark = Max(Max(1.35F * lid, 0.9F * below), gutter);
    const float streak = 0.5F * drum(p.fx, p.fy * 0.012F) + 0.4F * band(p.fx * 0.01F, p.fy);
    const float level =
        dark + 0.16F * clump(p) + 0.10F * streak + 0.20F * slope(p.fx * 0.4F, p.fy * 0.3F);
    const float toner = SoftThreshold(level + 0.62F * pepper(p), 0.36F, 0.16F);
    const float lost = SmoothRamp(0.05F, 0.3F, dropouts(torn(p)).depth);
    const float ink = Max(toner * (1.0F - 0.9F * lost), dirt(p));
    return 1.0F - ink * (0.95F + 0.05F * clump(p));
  });
  Soften(sheet, tone, 0.3F);
  StretchTo(sheet, tone, 0.01F, 0.8F);
  return tone;
}

const RegisteredTexture kPhotocopyGrit(TextureRecipe{
    .name = "Photocopy_Grit",
    .set = TextureSet::kDarkroom,
    .effects = {"Industrial", "Distress (Medium)", "Papers"},
    .seed = 1037,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
