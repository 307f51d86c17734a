// Butcher_Block: the top of a chopping bench, maple, glued from staves. Forty
// years of knives: cuts by the thousand, short and straight and mostly one way,
// dense where the cook stood, so that the middle is a fuzzy dish; grease and
// beetroot went into the end of every cut.
//
// What makes it read as that: clean thin cuts with dark floors, crowded in the
// middle and rare at the rim, over staves of calm pale wood.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

void AddCuts(StrokeSet& strokes, const Sheet& sheet, std::uint32_t seed) {
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  const int tries = FloorInt(width * height / 210.0F);
  for (int i = 0; i < tries; ++i) {
    Dice dice(seed, i);
    const float x = dice.Unit() * width;
    const float y = dice.Unit() * height;
    const float dx = (x / width - 0.47F) / 0.42F;
    const float dy = (y / height - 0.52F) / 0.44F;
    const float crowd =
        Exp(-2.2F * (dx * dx + dy * dy)) + 0.30F * GradientNoise(x / 260.0F, y / 260.0F, seed + 1);
    if (dice.Unit() > crowd + 0.02F) continue;
    // A right-handed cook, and a few strokes the other way.
    const float heading =
        dice.Chance(0.78F) ? dice.Around(-0.95F, 0.22F) : dice.Around(0.35F, 0.5F);
    const float deep = dice.Unit();
    const float length = dice.Between(16.0F, 64.0F) + 170.0F * Square(Square(deep * deep));
    const float radius = 0.30F + 0.70F * deep * deep * deep;
    const float ux = Cos(heading);
    const float uy = Sin(heading);
    const float bow = dice.Around(0.0F, 1.6F);
    const StrokePoint points[] = {
        {x, y, radius * 0.5F, 0.1F},
        {x + 0.22F * length * ux, y + 0.22F * length * uy, radius, 0.22F + 0.65F * deep * deep},
        {x + 0.6F * length * ux - bow * uy, y + 0.6F * length * uy + bow * ux, radius,
         0.20F + 0.6F * deep * deep},
        {x + length * ux, y + length * uy, radius * 0.4F, 0.05F}};
    strokes.Add(points);
  }
}

struct Stave {
  float v, breadth, toGlue;
  std::uint32_t hash;
};

Stave StaveAt(float x, float y, std::uint32_t seed) {
  float top = -60.0F;
  for (int i = 0;; ++i) {
    const float breadth = 118.0F + 64.0F * Unit(HashAt(i, 5, seed));
    if (y < top + breadth) {
      // Staves are joined lengthwise too, at places of their own.
      const float u = x + 2400.0F * Unit(HashAt(i, 6, seed));
      const int piece = FloorInt(u / 1500.0F);
      const float end =
          Min(u - 1500.0F * static_cast<float>(piece), 1500.0F * static_cast<float>(piece + 1) - u);
      const float v = y - top;
      return {v, breadth, Min(Min(v, breadth - v), end), HashAt(i, piece, seed + 1)};
    }
    top += breadth;
  }
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  StrokeSet strokes;
  AddCuts(strokes, sheet, seed + 1);
  Field cut(sheet);
  strokes.Draw(sheet, cut);
  Soften(sheet, cut, 0.3F);
  Field worked = cut;
  Blur(sheet, worked, 16.0F);

  const Fbm years{26.0F, 3, 0.55F, seed + 10};
  const Fbm fibre{3.0F, 2, 0.7F, seed + 11};
  const Fbm curl{70.0F, 3, 0.5F, seed + 12};
  struct Timber {
    float own, grain, glue;
  };
  const Survey<Timber> wood(sheet, [&](Spot p) {
    const Stave at = StaveAt(p.fx, p.fy, seed);
    const float x = p.fx + 5000.0F * Unit(Hash(at.hash + 1));
    const float y = at.v + 900.0F * Unit(Hash(at.hash + 2)) + 9.0F * curl(x * 0.25F, at.v);
    const float grain = 0.7F * years(x * 0.035F, y) + 0.4F * fibre(x * 0.035F, y) +
                        0.25F * curl(x * 1.5F, y * 0.5F) * Unit(Hash(at.hash + 3));
    return Timber{Unit(Hash(at.hash + 4)), grain, SmoothRamp(1.9F, 0.5F, at.toGlue)};
  });
  const Fbm stain{230.0F, 6, 0.58F, seed + 20};
  const Fbm grit{3.0F, 2, 0.7F, seed + 21};
  const Field relief = Painted(sheet, [&](Spot p) {
    return -1.6F * cut(p) + 0.35F * wood(p).grain - 0.8F * wood(p).glue + 0.25F * grit(p);
  });
  const Field light = Relief(sheet, relief, 0.30F);
  Field tone = Painted(sheet, [&](Spot p) {
    const Timber& at = wood(p);
    float value = 0.80F + 0.13F * (at.own - 0.5F) + 0.13F * at.grain + 0.10F * stain(p);
    value -= 0.22F * at.glue;
    // Where knives worked, fibres broke: duller, and stained.
    const float used = SmoothRamp(0.03F, 0.26F, worked(p));
    value -= 0.17F * used * (0.8F + 0.7F * stain(p)) - 0.03F * grit(p);
    value -= 0.12F * SoftThreshold(stain(p.fx * 0.4F + 700.0F, p.fy) + 0.5F * used, 0.25F, 0.8F);
    value *= 1.0F - 0.70F * Min(1.0F, cut(p)) * (0.75F + 0.35F * used);
    return value + 0.16F * light(p);
  });
  StretchTo(sheet, tone, 0.003F, 0.995F);
  return tone;
}

const RegisteredTexture kButcherBlock(TextureRecipe{
    .name = "Butcher_Block",
    .set = TextureSet::kTimberYard,
    .effects = {"Woods", "Scratches", "Distress (Medium)"},
    .seed = 3050,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
