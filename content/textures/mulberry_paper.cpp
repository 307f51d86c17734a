// Mulberry_Paper: a sheet dipped by hand from the bast of the paper mulberry, held
// against a window.
//
// What makes it read as that: silk-like fibres as long as a finger that swim in
// one direction more than the others, gather in skeins and cross; flecks of
// bark; thin clouds where the pulp lay unevenly; the shadow of the bamboo mat.
#include "builder/texture_recipe.h"
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
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  StrokeSet felt, skein, bark;
  for (int i = 0; i < FloorInt(w * h / 900.0F); ++i) {
    Dice dice(seed + 1, i);
    AddWalk(felt, {.x = dice.Unit() * w,
                   .y = dice.Unit() * h,
                   .length = dice.Between(40.0F, 190.0F),
                   .heading = dice.Around(0.3F, 1.6F),
                   .bend = dice.Around(0.0F, 0.5F),
                   .wobble = 0.9F,
                   .wobblePeriod = 60.0F,
                   .radius = dice.Between(0.5F, 1.1F),
                   .strength = dice.Between(0.12F, 0.6F),
                   .taper = 0.15F,
                   .skip = 0.6F,
                   .step = 10.0F,
                   .seed = dice.Word()});
  }
  const int skeins = FloorInt(w * h / 26000.0F);
  for (int i = 0; i < skeins; ++i) {
    Dice dice(seed + 2, i);
    const float x = dice.Between(-0.1F, 1.05F) * w;
    const float y = dice.Between(-0.05F, 1.05F) * h;
    const float heading = dice.Around(0.25F, 1.3F);
    const float bend = dice.Around(0.0F, 0.26F);
    const int strands = 1 + static_cast<int>(Square(dice.Unit()) * 9.0F);
    const float length = dice.Between(160.0F, 620.0F);
    for (int k = 0; k < strands; ++k) {
      AddWalk(skein, {.x = x + dice.Around(0.0F, 9.0F),
                      .y = y + dice.Around(0.0F, 9.0F),
                      .length = length * dice.Between(0.6F, 1.1F),
                      .heading = heading + dice.Around(0.0F, 0.07F),
                      .bend = bend + dice.Around(0.0F, 0.08F),
                      .wobble = 0.42F,
                      .wobblePeriod = 110.0F,
                      .radius = dice.Between(0.8F, 2.2F),
                      .strength = dice.Between(0.3F, 1.0F),
                      .taper = 0.2F,
                      .skip = 0.4F,
                      .skipPeriod = 90.0F,
                      .step = 9.0F,
                      .seed = dice.Word()});
    }
  }
  for (int i = 0; i < FloorInt(w * h / 30000.0F); ++i) {
    Dice dice(seed + 3, i);
    AddWalk(bark, {.x = dice.Unit() * w,
                   .y = dice.Unit() * h,
                   .length = dice.Between(4.0F, 34.0F),
                   .heading = dice.Around(0.3F, 1.2F),
                   .wobble = 2.0F,
                   .wobblePeriod = 14.0F,
                   .radius = dice.Between(0.8F, 3.4F),
                   .strength = dice.Between(0.4F, 1.0F),
                   .taper = 0.3F,
                   .step = 4.0F,
                   .seed = dice.Word()});
  }
  Field fine(sheet), fibre(sheet), fleck(sheet);
  felt.Draw(sheet, fine, {.profile = StrokeProfile::kRound});
  skein.Draw(sheet, fibre, {.profile = StrokeProfile::kRound});
  bark.Draw(sheet, fleck, {.ragged = 1.6F, .raggedPeriod = 5.0F, .seed = seed + 4});
  Field shade = fibre;
  Blur(sheet, shade, 5.0F);

  const Fbm pulp{120.0F, 6, 0.6F, seed + 5};
  const Fbm broad{600.0F, 3, 0.5F, seed + 6};
  const Fbm grain{3.4F, 3, 0.7F, seed + 7};
  const Fbm sway{500.0F, 2, 0.5F, seed + 8};
  Field tone = Painted(sheet, [&](Spot p) {
    const float splint = Cos((p.fy + 12.0F * sway(p)) * (kTau / 17.0F));
    const float thin =
        0.84F + 0.15F * pulp(p) + 0.09F * broad(p) + 0.018F * splint + 0.04F * grain(p);
    // Fibres are denser than the pulp: they hold back light.
    return (thin - 0.16F * fine(p) - 0.10F * shade(p)) *
           (1.0F - 0.62F * fibre(p) * (0.85F + 0.5F * grain(p))) * (1.0F - 0.85F * fleck(p));
  });
  Soften(sheet, tone, 0.3F);
  StretchTo(sheet, tone, 0.002F, 0.985F);
  return tone;
}

const RegisteredTexture kMulberryPaper(TextureRecipe{.name = "Mulberry_Paper",
                                                     .set = TextureSet::kPaperDrawer,
                                                     .effects = {"Papers", "Texture (Light)"},
                                                     .seed = 1018,
                                                     .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
