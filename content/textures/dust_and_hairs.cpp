// Dust_And_Hairs: what lies on a negative that was printed without blowing it clean.
// White leaves the picture; hairs, lint and grit are dark.
//
// What makes it read as that: hairs that curl as they fell, thin at both ends;
// lint in loops; grit in clusters where a drop dried; some of it on the back
// of the film and therefore out of focus.
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

void AddHairs(StrokeSet& set, const Sheet& sheet, int count, float coarse, std::uint32_t seed) {
  const float share =
      static_cast<float>(sheet.width) * static_cast<float>(sheet.height) / (2048.0F * 1536.0F);
  const int all = FloorInt(static_cast<float>(count) * share + 0.5F) + 2;
  for (int i = 0; i < all; ++i) {
    Dice dice(seed, i);
    const bool lint = dice.Chance(0.45F);
    AddWalk(set, {.x = dice.Unit() * static_cast<float>(sheet.width),
                  .y = dice.Unit() * static_cast<float>(sheet.height),
                  .length = lint ? dice.Between(20.0F, 130.0F) : dice.Between(120.0F, 520.0F),
                  .heading = dice.Between(0.0F, kTau),
                  .bend = lint ? dice.Around(0.0F, 2.6F) : dice.Around(0.0F, 0.5F),
                  .wobble = lint ? 3.4F : 0.9F,
                  .wobblePeriod = lint ? 26.0F : 90.0F,
                  .radius = coarse * dice.Between(0.7F, lint ? 1.5F : 2.1F),
                  .strength = dice.Between(0.55F, 1.0F),
                  .taper = 0.3F,
                  .skip = 0.2F,
                  .step = 5.0F,
                  .seed = dice.Word()});
  }
}

void AddGrit(StrokeSet& set, const Sheet& sheet, std::uint32_t seed) {
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  const int swarms = FloorInt(w * h / 40000.0F) + 5;
  for (int i = 0; i < swarms; ++i) {
    Dice dice(seed, i);
    const float x = dice.Unit() * w;
    const float y = dice.Unit() * h;
    const float reach = dice.Between(20.0F, 260.0F);
    const int grains = 3 + static_cast<int>(dice.Word() % 42U);
    for (int k = 0; k < grains; ++k) {
      const float gx = x + dice.Around(0.0F, reach);
      const float gy = y + dice.Around(0.0F, reach);
      const float size = 0.6F + 4.2F * Square(Square(dice.Unit()));
      const float heading = dice.Between(0.0F, kTau);
      const float drawn = size * dice.Between(0.0F, 1.8F);
      const StrokePoint points[] = {
          {gx, gy, size, 1.0F},
          {gx + drawn * Cos(heading), gy + drawn * Sin(heading), size * 0.7F, 0.9F}};
      set.Add(points);
    }
  }
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  StrokeSet sharp, soft;
  AddHairs(sharp, sheet, 120, 1.1F, seed + 1);
  AddGrit(sharp, sheet, seed + 2);
  AddHairs(soft, sheet, 34, 2.0F, seed + 3);
  Field front(sheet), back(sheet);
  sharp.Draw(sheet, front, {.ragged = 1.1F, .raggedPeriod = 4.5F, .seed = seed + 5});
  soft.Draw(sheet, back, {.ragged = 1.4F, .raggedPeriod = 6.0F, .seed = seed + 6});
  Blur(sheet, back, 2.6F);
  const Spots powder{15.0F, 0.17F, 0.5F, 2.0F, seed + 7};
  const Fbm where{300.0F, 4, 0.55F, seed + 8};
  const Fbm film{220.0F, 4, 0.55F, seed + 9};
  const Fbm grain{2.8F, 2, 0.7F, seed + 10};
  Field tone = Painted(sheet, [&](Spot p) {
    const float thin = Clamp01(0.35F + 1.4F * where(p));
    const float dust = SmoothRamp(0.1F, 0.6F, powder(p).depth) * thin * 0.75F;
    const float veil = 0.06F * Clamp01(0.2F + film(p)) + 0.02F * (1.0F + grain(p));
    return 1.0F - Max(Max(front(p), 0.85F * back(p)), Max(dust, veil));
  });
  Soften(sheet, tone, 0.4F);
  StretchTo(sheet, tone, 0.0005F, 0.9F);
  return tone;
}

const RegisteredTexture kDustAndHairs(TextureRecipe{.name = "Dust_And_Hairs",
                                                    .set = TextureSet::kDarkroom,
                                                    .effects = {"Distress (Light)", "Ephemeral"},
                                                    .seed = 1032,
                                                    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
