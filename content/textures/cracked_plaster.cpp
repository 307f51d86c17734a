// Cracked_Plaster: lime plaster in an empty house. It cracked as the wall
// moved, hollow places fell off and show the coarse first coat, and damp drew
// its borders.
//
// What makes it read as that: cracks that start wide, fork and end on other
// cracks; losses bounded by cracks with a thick broken rim; the sweep of the
// trowel, lit from one side.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/cracks.h"
#include "toolbox/filters.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/peel.h"
#include "toolbox/stains.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  StrokeSet wide;
  AddCracks(wide, sheet,
            {.starts = 5,
             .length = 1100.0F,
             .radius = 2.3F,
             .jerk = 0.42F,
             .pull = 0.10F,
             .branchEvery = 95.0F,
             .branchAngle = 1.0F,
             .branchShare = 0.62F,
             .generations = 4},
            seed);
  StrokeSet hair;
  AddCracks(hair, sheet,
            {.starts = 26,
             .length = 260.0F,
             .radius = 0.7F,
             .jerk = 0.5F,
             .pull = 0.10F,
             .branchEvery = 60.0F,
             .branchAngle = 1.2F,
             .branchShare = 0.6F,
             .generations = 3,
             .step = 5.0F},
            seed + 1);
  Field crack(sheet);
  wide.Draw(sheet, crack, {.ragged = 0.9F, .raggedPeriod = 4.0F, .seed = seed + 2});
  Field fine(sheet);
  hair.Draw(sheet, fine, {.ragged = 0.3F, .seed = seed + 3});
  Field nearCrack = crack;
  Blur(sheet, nearCrack, 16.0F);

  // Hollow places: where the noise is high and a crack let go of the wall.
  const Fbm hollow{340.0F, 5, 0.55F, seed + 10};
  const Warp broken{16.0F, {40.0F, 4, 0.6F, seed + 11}};
  const Cells lumps{64.0F, 1.0F, seed + 12};
  const Field loss = Painted(sheet, [&](Spot p) {
    const Spot q = broken(p);
    return hollow(q) + 0.30F * (lumps(q.fx, q.fy).id - 0.5F) + 2.6F * nearCrack(p);
  });
  const PeelingCoat coat =
      Peel(sheet, loss, {.at = 0.62F, .softness = 0.03F, .curl = 5.0F, .thickness = 6.0F});
  const auto gone = [&](Spot p) { return 1.0F - coat.cover(p); };

  const Fbm trowel{130.0F, 4, 0.5F, seed + 20};
  const Fbm sweep{20.0F, 3, 0.5F, seed + 21};
  const Cells strokes{210.0F, 1.0F, seed + 25};
  const Fbm sand{4.0F, 3, 0.75F, seed + 22};
  const Fbm coarse{13.0F, 4, 0.7F, seed + 23};
  const Spots grit{11.0F, 0.5F, 1.0F, 4.5F, seed + 24};
  const Field height = Painted(sheet, [&](Spot p) {
    // Each sweep of the trowel goes its own way and ends in a ridge.
    const CellSample stroke = strokes(p.fx + 50.0F * trowel(p), p.fy * 1.6F);
    const float way = stroke.id * 3.0F - 1.5F;
    const float u = p.fx * Cos(way) + p.fy * Sin(way);
    const float v = p.fy * Cos(way) - p.fx * Sin(way);
    const float face =
        0.25F * trowel(p) + 0.11F * sweep(u * 0.12F, v) + 0.24F * stroke.f1 + 0.05F * sand(p);
    const float base = -1.1F + 0.45F * coarse(p) + 0.22F * sand(p) + 0.5F * grit(p).depth;
    return Mix(face, base, gone(p)) - 1.2F * crack(p) - 0.6F * fine(p);
  });
  const Field light = Relief(sheet, height, 0.13F);

  const Fbm dirt{420.0F, 6, 0.55F, seed + 30};
  const Puddle damp{.x = 0.72F * static_cast<float>(sheet.width),
                    .y = 0.86F * static_cast<float>(sheet.height),
                    .radius = 460.0F,
                    .uneven = 0.4F,
                    .bays = 1.0F,
                    .seed = seed + 31};
  const TideMark mark{.rim = 7.0F, .fade = 80.0F, .body = 0.35F, .edge = 0.6F};
  Field tone = Painted(sheet, [&](Spot p) {
    float face = 0.80F + 0.16F * dirt(p) + 0.02F * sand(p);
    face *= 1.0F - 0.30F * mark(damp.Inside(p.fx, p.fy)) * (0.8F + 0.6F * dirt(p));
    const float base = 0.40F + 0.10F * coarse(p) + 0.08F * dirt(p) + 0.16F * grit(p).depth;
    float value = Mix(face, base, gone(p));
    value *= 1.0F - 0.55F * coat.shadow(p);
    value += 0.26F * light(p);
    return value * (1.0F - 0.90F * crack(p) * (1.0F - 0.5F * gone(p))) *
           (1.0F - 0.55F * fine(p) * (1.0F - gone(p))) * (1.0F - 0.18F * nearCrack(p));
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.002F, 0.996F);
  return tone;
}

const RegisteredTexture kCrackedPlaster(TextureRecipe{
    .name = "Cracked_Plaster",
    .set = TextureSet::kWallsAndSigns,
    .effects = {"Stone/Minerals", "Weathered/Aged", "Texture (Heavy)"},
    .seed = 417,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
