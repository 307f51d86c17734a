// Ring_Worn_Sleeve: the cover of a long-playing record that stood in a crate for thirty
// years. Unworn print is white and leaves the picture.
//
// What makes it read as that: the disc inside has rubbed its outline and its
// label through the print, in broken arcs; seams are split and corners
// blunted; the spine side is frayed; scuffs cross where neighbours slid past.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/scratches.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  StrokeSet rubs;
  AddScuffs(rubs, sheet,
            {.count = 95,
             .minLength = 60.0F,
             .maxLength = 420.0F,
             .heading = 0.06F,
             .spread = 0.12F,
             .stray = 0.25F,
             .slender = 0.5F,
             .minLines = 10,
             .maxLines = 80,
             .minRadius = 0.25F,
             .maxRadius = 0.9F,
             .minStrength = 0.15F,
             .maxStrength = 0.7F},
            seed + 1);
  Field rub(sheet);
  rubs.Draw(sheet, rub, {.ragged = 0.5F, .raggedPeriod = 4.0F, .seed = seed + 2});

  const Fbm press{420.0F, 4, 0.55F, seed + 3};
  const Fbm flake{30.0F, 4, 0.66F, seed + 4};
  const Fbm board{5.0F, 3, 0.75F, seed + 5};
  const Fbm sway{500.0F, 2, 0.5F, seed + 6};
  const Fbm split{130.0F, 4, 0.58F, seed + 7};
  const Spots foxing{180.0F, 0.28F, 3.0F, 30.0F, seed + 8};
  Field tone = Painted(sheet, [&](Spot p) {
    const float dx = p.fx - 0.51F * w + 9.0F * sway(p);
    const float dy = p.fy - 0.505F * h;
    const float far = Length(dx, dy);
    const float disc = 0.465F * h;
    const auto band = [&](float radius, float breadth) {
      return Exp(-Square((far - radius) / breadth));
    };
    // The rim presses hardest, with a second line where the disc settled; so
    // does the label's edge, and the bulge of the spindle hole.
    float worn = 0.62F * band(disc, 17.0F) + 0.36F * band(disc - 34.0F, 9.0F) +
                 0.48F * band(0.158F * h, 10.0F) + 0.36F * band(0.022F * h, 6.0F) +
                 0.24F * band(disc, 60.0F);
    worn *= Clamp01(0.78F + 0.95F * press(p));
    const float side = Min(p.fx, w - p.fx);
    const float end = Min(p.fy, h - p.fy);
    const float rim = Min(side, end);
    worn += 0.85F * Exp(-rim / (13.0F + 16.0F * Clamp01(0.5F + split(p)))) +
            0.75F * Exp(-(side + end) / 85.0F);
    const float bite = 0.42F * flake(p) + 0.42F * board(p);
    const float bare = SoftThreshold(worn + bite, 0.60F, 0.14F);
    const float thin = 0.50F * SmoothRamp(0.12F, 0.75F, worn + 0.5F * bite);
    float loss = Max(Max(bare, thin), rub(p) * (0.5F + 0.5F * Clamp01(0.4F + press(p))));
    // A split seam along the bottom, through to the dark inside.
    const float seam =
        SmoothRamp(Max(1.0F, 6.0F + 11.0F * split(p.fx, 0.0F)), 0.0F, h - 12.0F - p.fy);
    loss = Max(loss, seam * SmoothRamp(0.02F, 0.2F, split(p.fx * 0.5F, 400.0F)));
    const float fox = foxing(p).depth;
    const float stain = 0.16F * SmoothRamp(0.0F, 0.7F, fox + 0.2F * flake(p));
    return 1.0F - Clamp01(Max(loss * (0.88F + 0.3F * board(p)), stain));
  });
  Soften(sheet, tone, 0.4F);
  StretchTo(sheet, tone, 0.003F, 0.85F);
  return tone;
}

const RegisteredTexture kRingWornSleeve(TextureRecipe{
    .name = "Ring_Worn_Sleeve",
    .set = TextureSet::kPaperDrawer,
    .effects = {"Ephemeral", "Distress (Medium)", "Scratches", "Papers"},
    .seed = 1019,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
