// Flaking_Emulsion: a glass negative whose gelatine has let go: frilled away from
// one corner and along the rims, cracked further in, whole in the middle.
//
// What makes it read as that: islands between cracks that still fit together,
// rims that curl up and throw a shadow on the glass, cracks that start square
// to the border of a loss and branch where they run out.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/cracks.h"
#include "toolbox/filters.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/peel.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  StrokeSet cracks;
  AddCracks(cracks, sheet,
            {.starts = 13,
             .length = 760.0F,
             .radius = 2.2F,
             .jerk = 0.34F,
             .pull = 0.05F,
             .branchEvery = 120.0F,
             .branchAngle = 1.2F,
             .branchShare = 0.62F,
             .generations = 4},
            seed + 1);
  Field crack(sheet);
  cracks.Draw(sheet, crack, {.ragged = 0.8F, .raggedPeriod = 6.0F, .seed = seed + 2});
  Field beside = crack;
  Blur(sheet, beside, 20.0F);

  const Fbm bays{380.0F, 4, 0.52F, seed + 3};
  const Fbm frill{64.0F, 4, 0.6F, seed + 4};
  const Cells islands{96.0F, 1.0F, seed + 5};
  const Warp crooked{16.0F, {60.0F, 3, 0.55F, seed + 6}};
  const Field loss = Painted(sheet, [&](Spot p) {
    const float rim = Min(Min(p.fx, w - p.fx), Min(p.fy, h - p.fy));
    const float corner = Length(p.fx / (0.62F * w), (h - p.fy) / (0.70F * h));
    const float other = Length((w - p.fx) / (0.34F * w), p.fy / (0.42F * h));
    const Spot q = crooked(p);
    const CellSample island = islands.WithEdge(q.fx, q.fy);
    const float tired = 0.95F * SmoothRamp(1.05F, 0.10F, corner) +
                        0.70F * SmoothRamp(1.0F, 0.1F, other) + 0.55F * Exp(-rim / 42.0F);
    // An island goes as a whole or stays as a whole; it shrinks as it dries.
    return tired * (1.0F + 0.9F * (island.id - 0.5F)) + 0.50F * bays(p) + 0.13F * frill(p) +
           0.5F * tired * SmoothRamp(0.09F, 0.0F, island.edge) + 0.9F * beside(p) * tired - 0.52F;
  });
  const PeelingCoat coat =
      Peel(sheet, loss, {.at = 0.0F, .softness = 0.03F, .curl = 15.0F, .thickness = 7.0F});
  const Field height = Painted(sheet, [&](Spot p) {
    return coat.cover(p) + 1.3F * coat.lift(p) - 0.6F * crack(p) * coat.cover(p);
  });
  const Field light = Relief(sheet, height, 0.16F);
  const Fbm haze{240.0F, 5, 0.55F, seed + 7};
  const Fbm grain{3.2F, 3, 0.75F, seed + 8};
  const Fbm wiped{14.0F, 3, 0.6F, seed + 9};
  Field tone = Painted(sheet, [&](Spot p) {
    const float glass = 0.10F + 0.07F * haze(p) +
                        0.07F * Clamp01(wiped(p.fx * 0.03F + p.fy, p.fy)) - 0.09F * coat.shadow(p);
    // Where it no longer touches the glass, gelatine is milky.
    const float loose = SmoothRamp(-0.30F, -0.02F, loss(p));
    float film = 0.97F - 0.14F * loose * (1.0F + haze(p)) + 0.03F * grain(p);
    film *= 1.0F - 0.85F * crack(p);
    film += 0.30F * light(p);
    return Mix(glass, film, coat.cover(p));
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.002F, 0.9F);
  return tone;
}

const RegisteredTexture kFlakingEmulsion(TextureRecipe{
    .name = "Flaking_Emulsion",
    .set = TextureSet::kDarkroom,
    .effects = {"Distress (Heavy)", "Erosion (Medium)", "Ephemeral"},
    .seed = 1036,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
