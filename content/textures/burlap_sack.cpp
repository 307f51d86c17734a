// Burlap_Sack: jute sacking of the cheapest kind, so loosely woven that one sees
// through it, pulled out of shape where it was carried.
//
// What makes it read as that: fat hairy threads beside thin ones, square holes
// that close where the cloth was pulled together, coarse fibres that have left
// their thread and lie across the weave.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"
#include "toolbox/weave.h"

namespace tarnwick::content {
namespace {

Field Hairs(const Sheet& sheet) {
  StrokeSet hairs;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  for (int i = 0; i < FloorInt(w * h / 1500.0F); ++i) {
    Dice dice(sheet.seed + 40, i);
    const float way = dice.Chance(0.5F) ? 0.0F : 0.5F * kPi;
    AddWalk(hairs, {.x = dice.Unit() * w,
                    .y = dice.Unit() * h,
                    .length = dice.Between(20.0F, 110.0F),
                    .heading = way + dice.Around(0.0F, 0.5F),
                    .bend = dice.Around(0.0F, 1.0F),
                    .wobble = 1.2F,
                    .wobblePeriod = 30.0F,
                    .radius = dice.Between(0.4F, 0.9F),
                    .strength = dice.Between(0.2F, 0.9F),
                    .step = 6.0F,
                    .seed = dice.Word()});
  }
  Field hair(sheet);
  hairs.Draw(sheet, hair, {.profile = StrokeProfile::kRound});
  return hair;
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Weave jute{.warpPitch = 27.0F,
                   .weftPitch = 25.0F,
                   .warpFill = 0.74F,
                   .weftFill = 0.80F,
                   .uneven = 0.36F,
                   .slub = 0.38F,
                   .slubLength = 120.0F,
                   .wander = 0.34F,
                   .crimp = 0.5F,
                   .seed = seed};
  const Warp pulled{34.0F, {460.0F, 3, 0.5F, seed + 1}};
  const Warp rough{2.4F, {11.0F, 3, 0.62F, seed + 2}};
  const Fbm fibre{3.4F, 3, 0.7F, seed + 3};
  const Survey<Weave::Place> places(sheet, [&](Spot p) { return jute.At(rough(pulled(p))); });
  const auto strand = [&](Spot p) {
    const Weave::Place& at = places(p);
    // Yarn is twisted: its fibres run aslant.
    return fibre(at.along * 0.20F + at.across * 3.0F, at.across * 7.0F + Unit(at.thread) * 300.0F);
  };
  const Field height = Painted(sheet, [&](Spot p) {
    const Weave::Place& at = places(p);
    return at.hole ? -0.7F : at.height + 0.22F * strand(p);
  });
  const Field light = Relief(sheet, height, 0.30F);
  Field shade = height;
  Blur(sheet, shade, 6.0F);
  const Field hair = Hairs(sheet);
  const Fbm dirt{300.0F, 5, 0.55F, seed + 4};
  Field tone = Painted(sheet, [&](Spot p) {
    const Weave::Place& at = places(p);
    if (at.hole) return Mix(0.02F + 0.04F * (shade(p) + 0.4F), 0.40F, 0.6F * hair(p));
    const float dye = Unit(Hash(at.thread + 5)) - 0.5F;
    const float body = 0.46F + 0.26F * (height(p) - shade(p)) + 0.16F * at.height + 0.16F * dye +
                       0.10F * dirt(p) + 0.20F * light(p);
    return Mix(body, 0.86F, 0.45F * hair(p));
  });
  Soften(sheet, tone, 0.4F);
  StretchTo(sheet, tone, 0.004F, 0.997F);
  return tone;
}

const RegisteredTexture kBurlapSack(TextureRecipe{.name = "Burlap_Sack",
                                                  .set = TextureSet::kHidesAndCloth,
                                                  .effects = {"Fabrics", "Texture (Heavy)"},
                                                  .seed = 1002,
                                                  .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
