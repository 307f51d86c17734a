// Knife_Cuts: a cutting mat after years of trimming prints: thousands of cuts, most of
// them along the same few rulers. The mat is pale, cuts are dark.
//
// What makes it read as that: cuts dead straight and of even depth, thin where
// the blade lifted; bundles that lie nearly on one another; short crossings
// where corners were finished; torn chips where cuts meet.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

void AddCut(StrokeSet& set, float x, float y, float heading, float length, float depth,
            std::uint32_t seed) {
  AddWalk(set, {.x = x - 0.5F * length * Cos(heading),
                .y = y - 0.5F * length * Sin(heading),
                .length = length,
                .heading = heading,
                .bend = 0.0F,
                .wobble = 0.012F,
                .wobblePeriod = 200.0F,
                .radius = depth,
                .strength = Min(1.0F, 0.35F + 0.45F * depth),
                .taper = 0.12F,
                .skip = 0.5F,
                .skipPeriod = 150.0F,
                .step = 16.0F,
                .seed = seed});
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  StrokeSet set;
  const int bundles = FloorInt(w * h / 24000.0F) + 4;
  for (int i = 0; i < bundles; ++i) {
    Dice dice(seed + 1, i);
    const float x = dice.Between(0.02F, 0.98F) * w;
    const float y = dice.Between(0.02F, 0.98F) * h;
    const float way = dice.Unit();
    const float main =
        way < 0.42F ? 0.03F : (way < 0.74F ? 0.5F * kPi + 0.02F : dice.Between(0.0F, kPi));
    const float heading = main + dice.Around(0.0F, 0.05F);
    const float length = 120.0F + 1100.0F * Square(dice.Unit());
    const float spread = 4.0F + 60.0F * Square(dice.Unit());
    const int cuts = 1 + static_cast<int>(Square(dice.Unit()) * 11.0F);
    for (int k = 0; k < cuts; ++k) {
      const float off = dice.Around(0.0F, 1.0F) * spread;
      AddCut(set, x - off * Sin(heading) + dice.Around(0.0F, 60.0F), y + off * Cos(heading),
             heading + dice.Around(0.0F, 0.012F), length * dice.Between(0.5F, 1.0F),
             0.3F + 1.3F * Square(dice.Unit()), dice.Word());
    }
    // The corner at its end was finished across.
    if (dice.Chance(0.5F)) {
      AddCut(set, x + 0.5F * length * Cos(heading), y + 0.5F * length * Sin(heading),
             heading + 0.5F * kPi, dice.Between(20.0F, 130.0F), dice.Between(0.4F, 1.3F),
             dice.Word());
    }
  }
  for (int i = 0; i < FloorInt(w * h / 4200.0F); ++i) {
    Dice dice(seed + 2, i);
    AddCut(set, dice.Unit() * w, dice.Unit() * h, dice.Between(0.0F, kPi),
           dice.Between(6.0F, 90.0F), dice.Between(0.2F, 0.7F), dice.Word());
  }
  Field cut(sheet);
  set.Draw(
      sheet, cut,
      {.profile = StrokeProfile::kVee, .ragged = 0.5F, .raggedPeriod = 5.0F, .seed = seed + 3});
  Field worked = cut;
  Blur(sheet, worked, 5.0F);
  Field wide = cut;
  Blur(sheet, wide, 38.0F);
  const Fbm rubber{3.4F, 3, 0.7F, seed + 4};
  const Fbm grease{280.0F, 5, 0.56F, seed + 5};
  const Fbm chip{9.0F, 4, 0.65F, seed + 6};
  const Field height = Painted(sheet, [&](Spot p) {
    // The lips of a cut stand up a little.
    return 0.5F * worked(p) - 1.0F * cut(p) + 0.06F * rubber(p);
  });
  const Field light = Relief(sheet, height, 0.40F);
  Field tone = Painted(sheet, [&](Spot p) {
    const float torn = SoftThreshold(worked(p) + 0.26F * chip(p), 0.56F, 0.08F);
    float value = 0.93F + 0.05F * grease(p) + 0.03F * rubber(p) - 0.6F * wide(p);
    value += 0.14F * light(p);
    value *= 1.0F - 0.90F * Clamp01(1.5F * cut(p));
    return value * (1.0F - 0.7F * torn);
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.002F, 0.93F);
  return tone;
}

const RegisteredTexture kKnifeCuts(TextureRecipe{.name = "Knife_Cuts",
                                                 .set = TextureSet::kEssentials,
                                                 .effects = {"Scratches", "Distress (Medium)"},
                                                 .seed = 1042,
                                                 .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
