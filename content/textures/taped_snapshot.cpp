// Taped_Snapshot: an album page from which a picture was taken: sticky tape across its
// four corners, yellow by now and full of dust, and the pale place where the
// picture was.
//
// What makes it read as that: tape cut with a pinking edge, with air trapped
// below it in long bubbles, dirt caught along its sides; corners that lie at
// odd angles; the paper darkened round a clean rectangle.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/folds.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

struct Tape {
  float x, y;  // its middle, shares of the sheet
  float turn;  // radians
  float half;  // half length, pixels
  std::uint32_t seed;
};

constexpr float kHalfBreadth = 74.0F;
constexpr Tape kTapes[] = {{0.062F, 0.090F, -0.72F, 235.0F, 1},
                           {0.945F, 0.075F, 0.62F, 215.0F, 2},
                           {0.055F, 0.915F, 0.80F, 205.0F, 3},
                           {0.935F, 0.930F, -0.66F, 250.0F, 4},
                           {0.545F, 0.030F, 0.05F, 165.0F, 5}};

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  StrokeSet lint;
  for (int i = 0; i < FloorInt(w * h / 26000.0F); ++i) {
    Dice dice(seed + 1, i);
    AddWalk(lint, {.x = dice.Unit() * w,
                   .y = dice.Unit() * h,
                   .length = dice.Between(8.0F, 70.0F),
                   .heading = dice.Between(0.0F, kTau),
                   .bend = dice.Around(0.0F, 2.0F),
                   .wobble = 3.0F,
                   .wobblePeriod = 18.0F,
                   .radius = dice.Between(0.5F, 1.3F),
                   .strength = dice.Between(0.3F, 1.0F),
                   .step = 4.0F,
                   .seed = dice.Word()});
  }
  Field fluff(sheet);
  lint.Draw(sheet, fluff);
  const Fbm edge{90.0F, 4, 0.55F, seed + 2};
  const Fbm cloud{170.0F, 5, 0.57F, seed + 3};
  const Fbm air{60.0F, 3, 0.5F, seed + 4};
  const Fbm fibre{4.0F, 3, 0.72F, seed + 5};
  const Fbm dirt{13.0F, 4, 0.66F, seed + 6};
  const Spots specks{22.0F, 0.30F, 0.6F, 3.4F, seed + 7};
  // The picture was folded once across before it was taped in.
  const Folds fold({{0.47F * w, 0.5F * h, 1.83F, 0.75F, true}}, seed + 8);
  Field tone = Painted(sheet, [&](Spot p) {
    // The page: clean where the picture lay, toned around it.
    const float rim = Min(Min(p.fx - 88.0F + 0.010F * p.fy, w - 96.0F - p.fx - 0.006F * p.fy),
                          Min(p.fy - 82.0F - 0.008F * p.fx, h - 90.0F - p.fy + 0.005F * p.fx));
    const float covered = SmoothRamp(-5.0F, 7.0F, rim + 3.0F * edge(p));
    float value =
        Mix(0.70F + 0.12F * cloud(p) + 0.05F * fibre(p), 0.985F + 0.02F * fibre(p), covered);
    value -= 0.22F * covered * Exp(-Max(0.0F, rim + 14.0F * edge(p)) / 34.0F);
    value -= 0.30F * Exp(-Square(rim / 3.0F)) * Clamp01(0.5F + edge(p));
    const FoldSpot crease = fold.At(p.fx, p.fy);
    value *= 1.0F - covered * (0.80F * crease.wear + 0.30F * Max(0.0F, -crease.shade));
    const float speck = SmoothRamp(0.1F, 0.5F, specks(p).depth);
    value *= 1.0F - speck * 0.55F * Clamp01(0.15F + 1.2F * cloud(p) + 0.5F * (1.0F - covered));
    value *= 1.0F - 0.55F * fluff(p) * Clamp01(0.2F + 1.4F * cloud(p));
    for (const Tape& tape : kTapes) {
      const float dx = p.fx - tape.x * w;
      const float dy = p.fy - tape.y * h;
      const float c = Cos(tape.turn);
      const float s = Sin(tape.turn);
      const float along = dx * c + dy * s;
      const float across = dy * c - dx * s;
      if (Abs(along) > tape.half + 30.0F || Abs(across) > kHalfBreadth + 30.0F) continue;
      // Ends cut by the teeth of the dispenser, one of them aslant.
      const float tooth = across / 9.0F;
      const float zigzag = Abs(tooth - static_cast<float>(FloorInt(tooth)) - 0.5F) * 11.0F;
      const float end = tape.half - Abs(along + 0.10F * across) - zigzag;
      const float side = kHalfBreadth - Abs(across);
      const float in = Min(end, side);
      const float shift = 777.0F * static_cast<float>(tape.seed);
      // Dust sticks to glue that crept out at the sides.
      const float creep = Exp(-Square((in + 2.0F) / 5.0F)) * Clamp01(0.55F + dirt(p));
      value *= 1.0F - 0.62F * creep;
      if (in <= -1.0F) continue;
      const float bubble = SmoothRamp(0.10F, 0.40F, air(along * 0.55F + shift, across * 0.9F));
      const float rimmed = bubble * (1.0F - bubble) * 4.0F;
      const float aged = 0.46F + 0.20F * cloud(along + shift, across * 1.7F) +
                         0.16F * SmoothRamp(30.0F, 0.0F, side) +
                         0.10F * SmoothRamp(24.0F, 0.0F, end);
      const float film = (1.0F - aged * (1.0F - 0.17F * bubble)) + 0.10F * rimmed +
                         0.03F * fibre(along * 0.06F, across * 1.2F);
      value = Mix(value, Min(1.0F, 0.25F + value) * film, SmoothRamp(-1.0F, 1.0F, in));
      value -= 0.22F * Exp(-Square(in / 1.8F));
    }
    return value;
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.002F, 0.85F);
  return tone;
}

const RegisteredTexture kTapedSnapshot(TextureRecipe{.name = "Taped_Snapshot",
                                                     .set = TextureSet::kPaperDrawer,
                                                     .effects = {"Ephemeral", "Papers"},
                                                     .seed = 1041,
                                                     .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
