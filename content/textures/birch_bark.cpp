// Birch_Bark: the white bark of a birch, wound round the trunk like paper. It
// comes off in bands that roll up at the rim; pores lie across it as short dark
// dashes; where a branch fell the bark is black, torn and shaped like a brow.
//
// What makes it read as that: nearly all of it pale, all of it drawn sideways,
// dashes of every length with pointed ends, and few scars but black ones.
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/peel.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

void AddPores(StrokeSet& strokes, const Sheet& sheet, const Fbm& crowd, std::uint32_t seed) {
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  const int tries = FloorInt(width * height / 1500.0F);
  for (int i = 0; i < tries; ++i) {
    Dice dice(seed, i);
    const float x = dice.Unit() * width;
    const float y = dice.Unit() * height;
    const float luck = dice.Unit();
    if (luck > 0.30F + 0.9F * crowd(x * 0.5F, y)) continue;
    const float size = dice.Unit();
    const float length = 8.0F + 150.0F * size * size * size * size;
    const float radius = dice.Between(0.7F, 1.5F) + 2.6F * size * size;
    AddWalk(strokes, {.x = x,
                      .y = y,
                      .length = length,
                      .heading = dice.Around(0.0F, 0.035F),
                      .wobble = 0.35F,
                      .radius = radius,
                      .strength = dice.Between(0.45F, 1.0F),
                      .taper = 0.5F,
                      .skip = size > 0.7F ? 0.7F : 0.0F,
                      .step = 5.0F,
                      .seed = dice.Word()});
  }
}

// A scar that a branch left: a lens of torn black bark whose upper lid reaches
// farther out than the lower one and droops.
struct Scar {
  float x, y, width;
};

void AddScar(StrokeSet& strokes, const Scar& scar, std::uint32_t seed) {
  Dice dice(seed);
  for (int layer = 0; layer < 9; ++layer) {
    const float level = static_cast<float>(layer) / 8.0F;
    const float wide = scar.width * (1.0F - 0.62F * level) * dice.Between(0.8F, 1.1F);
    const float thick = scar.width * dice.Between(0.030F, 0.062F);
    const float droop = scar.width * (0.20F - 0.34F * level);
    const float aside = dice.Around(0.0F, 0.10F) * scar.width;
    std::vector<StrokePoint> points;
    for (int k = -14; k <= 14; ++k) {
      const float t = static_cast<float>(k) / 14.0F;
      const float sway = dice.Around(0.0F, 0.010F * scar.width);
      points.push_back({scar.x + aside + t * wide,
                        scar.y + scar.width * 0.36F * level + droop * t * t + sway,
                        thick * (1.0F - 0.9F * t * t) + 0.5F, 1.0F - 0.4F * t * t});
    }
    strokes.Add(points);
  }
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  const Fbm crowd{260.0F, 3, 0.55F, seed + 1};
  StrokeSet pores;
  AddPores(pores, sheet, crowd, seed + 2);
  Field pore(sheet);
  pores.Draw(sheet, pore, {.ragged = 0.9F, .raggedPeriod = 4.0F, .seed = seed + 3});

  const Scar places[] = {{0.24F * width, 0.29F * height, 190.0F},
                         {0.79F * width, 0.70F * height, 120.0F},
                         {0.57F * width, 0.07F * height, 70.0F}};
  StrokeSet scars;
  for (std::uint32_t i = 0; i < 3; ++i) AddScar(scars, places[i], seed + 10 + i);
  Field scar(sheet);
  scars.Draw(sheet, scar, {.ragged = 4.0F, .raggedPeriod = 23.0F, .seed = seed + 15});
  Soften(sheet, scar, 0.4F);
  Field near = scar;
  Blur(sheet, near, 26.0F);

  const Fbm bands{300.0F, 5, 0.55F, seed + 70};
  const Fbm fray{22.0F, 4, 0.6F, seed + 71};
  const Field loss = Painted(sheet, [&](Spot p) {
    const float sag = 16.0F * bands(p.fx * 0.2F + 900.0F, p.fy * 0.3F);
    return bands(p.fx * 0.15F, (p.fy + sag) * 1.3F) + 0.07F * fray(p.fx * 0.3F, p.fy) +
           0.25F * near(p);
  });
  const PeelingCoat outer =
      Peel(sheet, loss, {.at = 0.19F, .softness = 0.015F, .curl = 11.0F, .thickness = 6.0F});
  const PeelingCoat inner =
      Peel(sheet, loss, {.at = 0.36F, .softness = 0.02F, .curl = 8.0F, .thickness = 4.0F});

  const Fbm paper{5.0F, 3, 0.65F, seed + 80};
  const Fbm wrap{46.0F, 4, 0.55F, seed + 81};
  const Fbm dust{240.0F, 5, 0.6F, seed + 82};
  const auto sheen = [&](Spot p) {
    return 0.6F * wrap(p.fx * 0.03F, p.fy) + 0.5F * paper(p.fx * 0.05F, p.fy);
  };
  const Field relief = Painted(sheet, [&](Spot p) {
    return 0.5F * outer.cover(p) + 0.5F * inner.cover(p) + 1.3F * outer.lift(p) +
           0.7F * inner.lift(p) + 0.35F * sheen(p) + 0.5F * pore(p) - 1.6F * scar(p);
  });
  const Field light = Relief(sheet, relief, 0.20F);
  Field tone = Painted(sheet, [&](Spot p) {
    const float grain = sheen(p);
    const float white = 0.93F + 0.07F * grain + 0.09F * dust(p);
    const float second = 0.74F + 0.12F * grain + 0.10F * dust(p);
    const float raw = 0.50F + 0.18F * grain + 0.12F * dust(p);
    float value = Mix(Mix(raw, second, inner.cover(p)), white, outer.cover(p));
    value *= 1.0F - 0.5F * outer.shadow(p) - 0.3F * inner.shadow(p);
    value -= 0.75F * pore(p) * (0.45F + 0.55F * outer.cover(p));
    value -= 0.40F * near(p);
    value = Mix(value, 0.08F + 0.10F * paper(p), Min(1.0F, scar(p)));
    return value + 0.13F * light(p);
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.003F, 0.93F);
  return tone;
}

const RegisteredTexture kBirchBark(TextureRecipe{
    .name = "Birch_Bark",
    .set = TextureSet::kTimberYard,
    .effects = {"Woods", "Texture (Medium)", "Erosion (Light)"},
    .seed = 3002,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
