// Agate_Slice: a polished slice of an agate in its rock. Bands of every breadth
// follow the wall of the hollow, all round, down to a heart of crystals.
//
// What makes it read as that: bands keep their course side by side through
// every bay; packets of hair-fine bands between broad clear ones; a band fades
// and comes back along its length; the heart is faceted, the rock outside dull
// and rough.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float tall = static_cast<float>(sheet.height);
  const Warp bays{150.0F, {520.0F, 2, 0.5F, seed}};
  const Warp nooks{30.0F, {130.0F, 4, 0.5F, seed + 5}};
  const Fbm shiver{30.0F, 3, 0.5F, seed + 9};
  const Fbm clear{340.0F, 4, 0.55F, seed + 14};
  const Fbm rock{70.0F, 6, 0.62F, seed + 20};
  const Fbm fine{3.0F, 2, 0.7F, seed + 26};
  const Cells crystals{58.0F, 1.0F, seed + 30};
  const Cells grains{17.0F, 1.0F, seed + 31};
  const Fbm fibre{14.0F, 3, 0.6F, seed + 32};

  // Pixels from the middle of the slice, bent into bays.
  const Field depth = Painted(sheet, [&](Spot p) {
    const Spot q = nooks(bays(p));
    const float dx = (q.fx - 0.57F * width) / (0.50F * width);
    const float dy = (q.fy - 0.47F * tall) / (0.55F * tall);
    // Rounder towards the heart, squarish along the wall.
    const float round = Length(dx, dy);
    const float square = Sqrt(Sqrt(Square(dx * dx) + Square(dy * dy)));
    return 880.0F * Mix(round, square, 0.55F) + 2.2F * shiver(p);
  });
  const Field height = Painted(sheet, [&](Spot p) { return 3.0F * rock(p) + 0.5F * fine(p); });
  const Field light = Relief(sheet, height, 0.2F);

  Field tone = Painted(sheet, [&](Spot p) {
    const float d = depth(p);
    const float veil = clear(p);
    if (d > 930.0F) {
      return 0.26F + 0.11F * rock(p) + 0.16F * light(p) + 0.30F * Exp(-(d - 930.0F) / 5.0F);
    }
    const float broad = LineNoise(d / 96.0F, seed + 50);
    const float middle = LineNoise(d / 27.0F, seed + 51);
    const float narrow = LineNoise(d / 8.5F, seed + 52);
    const float hair = LineNoise(d / 2.9F, seed + 53);
    const float packet = SmoothRamp(-0.1F, 0.6F, LineNoise(d / 70.0F, seed + 54) + 0.4F * veil);
    float value = 0.60F + 0.20F * SoftThreshold(broad, 0.0F, 0.5F) - 0.10F +
                  0.20F * middle * (0.7F + 0.8F * veil);
    value += packet * (0.15F * narrow + 0.13F * hair) * (0.85F + 0.6F * veil);
    // White bands, opaque and sharp on their outer side.
    const float chalk = LineNoise(d / 41.0F, seed + 55);
    value = Mix(value, 0.97F,
                0.85F * SoftThreshold(chalk, 0.55F, 0.12F) * SmoothRamp(-0.5F, 0.1F, veil));
    value = Mix(value, 0.12F, 0.70F * SoftThreshold(LineNoise(d / 57.0F, seed + 56), 0.62F, 0.14F));
    // Fibres stand square to the bands; too fine to see but as a bloom.
    value += 0.025F * fibre(p) + 0.012F * fine(p);
    value *= 1.0F - 0.55F * SmoothRamp(905.0F, 930.0F, d);
    if (d < 235.0F) {
      const CellSample large = crystals(p.fx + 3.0F * fibre(p), p.fy);
      const CellSample small = grains(p.fx, p.fy);
      const auto facet = [](const CellSample& cell) {
        const float way = cell.id * 25.0F;
        const float side = cell.dx * Cos(way) + cell.dy * Sin(way);
        return (side > 0.0F ? 0.10F : -0.08F) + 0.22F * (Unit(Hash(cell.hash + 2)) - 0.5F) +
               0.12F * side;
      };
      const bool inner = d < 205.0F - 60.0F * Unit(large.hash);
      // Clear quartz: planes over planes, and hair cracks within.
      const float within = 0.10F * fibre(p) + 0.16F * rock(p) +
                           0.10F * SmoothRamp(0.05F, 0.0F, Abs(rock(p.fx * 1.7F, p.fy * 1.7F)));
      const float druse = inner ? 0.36F + facet(large) + 0.6F * facet(small) + within +
                                      0.14F * SmoothRamp(0.05F, 0.0F, large.f2 - large.f1)
                                : 0.56F + 1.1F * facet(small) + 0.6F * within -
                                      0.2F * SmoothRamp(0.1F, 0.0F, small.f2 - small.f1);
      value = Mix(druse * SmoothRamp(-190.0F, 130.0F, d), value, SmoothRamp(226.0F, 236.0F, d));
    }
    return value;
  });
  Soften(sheet, tone, 0.45F);
  StretchTo(sheet, tone, 0.003F, 0.995F);
  return tone;
}

const RegisteredTexture kAgateSlice(TextureRecipe{.name = "Agate_Slice",
                                                  .set = TextureSet::kQuarry,
                                                  .effects = {"Stone/Minerals", "Ephemeral"},
                                                  .seed = 2060,
                                                  .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
