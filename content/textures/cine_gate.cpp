// Cine_Gate: a single frame of narrow home-movie film that ran too often.
//
// What makes it read as that: the rounded aperture with fluff and a hair stuck
// in it, a perforation at the left with its burnt-in glow, tramlines that run
// from top to bottom and flicker, short rain between them, the next frame's
// edge below.
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

void AddTramlines(StrokeSet& set, const Sheet& sheet) {
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  for (int i = 0; i < 26; ++i) {
    Dice dice(sheet.seed + 1, i);
    const float x = dice.Between(0.06F, 0.99F) * w;
    const int side = 1 + static_cast<int>(dice.Word() % 3U);
    const float radius = dice.Between(0.5F, 2.2F);
    const float strength = dice.Between(0.35F, 1.0F);
    for (int k = 0; k < side; ++k) {
      AddWalk(set, {.x = x + dice.Around(0.0F, 7.0F * static_cast<float>(k)),
                    .y = -30.0F,
                    .length = h + 60.0F,
                    .heading = 0.5F * kPi + dice.Around(0.0F, 0.004F),
                    .wobble = 0.010F,
                    .wobblePeriod = 300.0F,
                    .radius = radius * dice.Between(0.5F, 1.0F),
                    .strength = strength,
                    .taper = 0.0F,
                    .skip = dice.Between(0.3F, 2.0F),
                    .skipPeriod = dice.Between(30.0F, 300.0F),
                    .step = 14.0F,
                    .seed = dice.Word()});
    }
  }
  for (int i = 0; i < FloorInt(w * h / 7000.0F); ++i) {
    Dice dice(sheet.seed + 2, i);
    // Rain falls in gusts.
    const float gust = Square(dice.Unit()) * 0.5F * w;
    AddWalk(set, {.x = Fraction((dice.Chance(0.5F) ? 0.3F : 0.82F) + gust / w) * w,
                  .y = dice.Between(-0.1F, 1.0F) * h,
                  .length = dice.Between(14.0F, 240.0F),
                  .heading = 0.5F * kPi + dice.Around(0.0F, 0.02F),
                  .radius = dice.Between(0.3F, 1.0F),
                  .strength = dice.Between(0.15F, 0.8F),
                  .skip = 0.6F,
                  .step = 10.0F,
                  .seed = dice.Word()});
  }
}

void AddFluff(StrokeSet& set, const Sheet& sheet) {
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  for (int i = 0; i < 84; ++i) {
    Dice dice(sheet.seed + 3, i);
    const float at = dice.Unit();
    const bool below = dice.Chance(0.65F);
    const bool hair = i < 5;
    AddWalk(set, {.x = below ? at * w : w - 66.0F,
                  .y = below ? h - 92.0F : at * h,
                  .length = hair ? dice.Between(150.0F, 330.0F) : dice.Between(8.0F, 60.0F),
                  .heading = (below ? -0.5F * kPi : kPi) + dice.Around(0.0F, 0.7F),
                  .bend = dice.Around(0.0F, hair ? 0.7F : 3.0F),
                  .wobble = hair ? 0.7F : 3.0F,
                  .wobblePeriod = hair ? 80.0F : 20.0F,
                  .radius = hair ? 2.4F : dice.Between(0.8F, 2.4F),
                  .taper = 0.1F,
                  .step = 4.0F,
                  .seed = dice.Word()});
  }
}

// Pixels into a rectangle with round corners.
float Within(float x, float y, float left, float top, float right, float bottom, float round) {
  const float dx = Abs(x - 0.5F * (left + right)) - 0.5F * (right - left) + round;
  const float dy = Abs(y - 0.5F * (top + bottom)) - 0.5F * (bottom - top) + round;
  return round - Length(Max(dx, 0.0F), Max(dy, 0.0F)) - Min(0.0F, Max(dx, dy));
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  StrokeSet lines, fluff;
  AddTramlines(lines, sheet);
  AddFluff(fluff, sheet);
  Field scratch(sheet), dirt(sheet);
  lines.Draw(sheet, scratch, {.ragged = 0.5F, .raggedPeriod = 5.0F, .seed = seed + 4});
  fluff.Draw(sheet, dirt, {.ragged = 1.2F, .raggedPeriod = 5.0F, .seed = seed + 5});
  const Fbm burr{26.0F, 4, 0.6F, seed + 6};
  const Fbm bow{700.0F, 2, 0.5F, seed + 7};
  const Fbm grain{3.4F, 3, 0.7F, seed + 8};
  const Fbm fade{500.0F, 3, 0.5F, seed + 9};
  const Spots specks{70.0F, 0.22F, 1.0F, 11.0F, seed + 10};
  const Warp torn{7.0F, {12.0F, 3, 0.62F, seed + 11}};
  Field tone = Painted(sheet, [&](Spot p) {
    const float edge = 3.0F * burr(p) + 5.0F * bow(p);
    const float gate = Within(p.fx, p.fy, 132.0F, 34.0F, w - 66.0F, h - 92.0F, 74.0F) + edge;
    const float hole = Within(p.fx, p.fy, -60.0F, 0.37F * h, 92.0F, 0.63F * h, 34.0F) + 0.4F * edge;
    const float next = p.fy - (h - 40.0F) + edge;
    // The gate's edge is out of focus: it lies before the film.
    float light = SmoothRamp(-7.0F, 9.0F, gate);
    light *= 1.0F - 0.26F * Exp(-Max(0.0F, gate) / 190.0F) - 0.10F * Clamp01(fade(p));
    light = Max(light, SmoothRamp(-3.0F, 3.0F, hole));
    // Light that came through the perforation fogged the film around it.
    light = Max(light, 0.46F * Exp(-Max(0.0F, -hole) / 30.0F));
    light = Max(light, 0.5F * SmoothRamp(-5.0F, 8.0F, next) * SmoothRamp(60.0F, 200.0F, p.fx));
    const float speck = SmoothRamp(0.12F, 0.5F, specks(torn(p)).depth);
    light = light * (1.0F - 0.9F * speck) * (1.0F - 0.92F * dirt(p));
    // In the picture scratches are dark, in the black margin they shine.
    light = Mix(light, light > 0.3F ? 0.04F : 0.7F, scratch(p));
    return light * (1.0F + 0.05F * grain(p));
  });
  Soften(sheet, tone, 0.4F);
  StretchTo(sheet, tone, 0.002F, 0.9F);
  return tone;
}

const RegisteredTexture kCineGate(TextureRecipe{.name = "Cine_Gate",
                                                .set = TextureSet::kDarkroom,
                                                .effects = {"Scratches", "Distress (Medium)"},
                                                .seed = 1033,
                                                .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
