// Emulsion_Lift: the skin of an instant picture, floated off in hot water and laid on
// paper with the fingers.
//
// What makes it read as that: a membrane a little too large for its place, so
// that it lies in long soft wrinkles that run in from the rim and die out; its
// border hangs in folds, torn at one corner and doubled over at others.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

// Wrinkles: they begin at the border, square to it or nearly, and wander in.
Field Wrinkles(const Sheet& sheet, std::uint32_t seed, int count, float coarse) {
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  StrokeSet set;
  for (int i = 0; i < count; ++i) {
    Dice dice(seed, i);
    const float at = dice.Unit() * 2.0F * (w + h);
    Walk walk{.length = dice.Between(90.0F, 330.0F) + 700.0F * Square(Square(dice.Unit())),
              .bend = dice.Around(0.0F, 0.25F),
              .wobble = 0.75F,
              .wobblePeriod = 85.0F,
              .radius = coarse * dice.Between(2.0F, 7.0F),
              .strength = dice.Between(0.35F, 1.0F),
              .taper = 0.45F,
              .skip = 0.5F,
              .skipPeriod = 70.0F,
              .step = 7.0F,
              .seed = dice.Word()};
    if (i % 6 == 5) {
      // Some lie free in the middle, where a finger pushed water out.
      walk.length *= 1.8F;
      walk.radius *= 0.8F;
    }
    const float lean = dice.Around(0.0F, 0.75F);
    const float in = i % 6 == 5 ? dice.Between(0.3F, 0.6F) * h : dice.Between(20.0F, 110.0F);
    if (at < w) {
      walk.x = at, walk.y = in, walk.heading = 0.5F * kPi + lean;
    } else if (at < 2.0F * w) {
      walk.x = at - w, walk.y = h - in, walk.heading = -0.5F * kPi + lean;
    } else if (at < 2.0F * w + h) {
      walk.x = in, walk.y = at - 2.0F * w, walk.heading = lean;
    } else {
      walk.x = w - in, walk.y = at - 2.0F * w - h, walk.heading = kPi + lean;
    }
    AddWalk(set, walk);
  }
  Field field(sheet);
  set.Draw(sheet, field,
           {.profile = StrokeProfile::kVee, .ragged = 1.5F, .raggedPeriod = 24.0F, .seed = seed});
  return field;
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  Field wrinkle = Wrinkles(sheet, seed + 1, 190, 1.0F);
  Field fold = Wrinkles(sheet, seed + 2, 34, 3.2F);
  Blur(sheet, fold, 2.0F);
  const Fbm sway{360.0F, 3, 0.5F, seed + 3};
  const Fbm frill{80.0F, 4, 0.55F, seed + 4};
  const Fbm nick{18.0F, 3, 0.6F, seed + 5};
  const auto inside = [&](Spot p) {
    const float rim = Min(Min(p.fx, w - p.fx), Min(p.fy, h - p.fy));
    const float tear = Length(p.fx - 0.02F * w, (p.fy - 0.97F * h) * 0.8F) - 210.0F;
    const float in = Min(rim - 62.0F, 0.9F * tear);
    return in + 40.0F * sway(p) + 17.0F * frill(p) + 2.4F * nick(p) - 22.0F * fold(p);
  };
  const Field edge = Painted(sheet, inside);
  const Fbm drape{250.0F, 3, 0.5F, seed + 6};
  const Field height = Painted(sheet, [&](Spot p) {
    const float near = SmoothRamp(420.0F, 20.0F, edge(p));
    return 1.0F * wrinkle(p) + 2.2F * fold(p) + 1.2F * near * drape(p) +
           1.1F * SmoothRamp(-2.0F, 3.0F, edge(p)) + 1.0F * near * Exp(-Abs(edge(p) - 9.0F) / 6.0F);
  });
  const Field light = Relief(sheet, height, 0.20F);
  const Fbm stain{280.0F, 5, 0.55F, seed + 7};
  const Fbm tooth{4.2F, 3, 0.7F, seed + 8};
  Field tone = Painted(sheet, [&](Spot p) {
    const float in = edge(p);
    // Two or three skins on top of each other let less light through.
    const float doubled =
        SmoothRamp(0.34F, 0.42F, fold(p)) * 0.38F + 0.42F * SmoothRamp(0.10F, 0.55F, wrinkle(p));
    float value = 0.97F - 0.06F * stain(p) - doubled;
    value *= 1.0F - 0.45F * Exp(-Max(0.0F, in) / 20.0F) - 0.22F * Exp(-Max(0.0F, in) / 150.0F);
    value += 0.34F * light(p);
    const float paper = 0.06F + 0.05F * tooth(p) + 0.05F * stain(p);
    return Mix(paper, value + 0.02F * tooth(p), SmoothRamp(-2.0F, 2.0F, in));
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.004F, 0.88F);
  return tone;
}

const RegisteredTexture kEmulsionLift(TextureRecipe{
    .name = "Emulsion_Lift",
    .set = TextureSet::kDarkroom,
    .effects = {"Ephemeral", "Distress (Medium)", "Texture (Light)"},
    .seed = 1039,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
