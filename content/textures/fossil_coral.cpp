// Fossil_Coral: a beach stone of colony coral, polished by the surf. Six-sided
// cups lie wall to wall, thin ribs run from each wall to a dark eye.
//
// What makes it read as that: cups of unequal size and shape that share their
// walls, ribs alternately long and short that bend a little, eyes off their
// middle, cups filled lighter or darker one by one.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"
#include "toolbox/turn.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  constexpr float kPeriod = 150.0F;
  const Warp grown{30.0F, {260.0F, 3, 0.5F, seed}};
  const Warp uneven{2.2F, {34.0F, 3, 0.6F, seed + 5}};
  const Cells cups{kPeriod, 0.82F, seed + 10};
  const Fbm grain{4.0F, 3, 0.7F, seed + 20};
  const Fbm mud{42.0F, 5, 0.6F, seed + 24};
  const Fbm polish{460.0F, 5, 0.55F, seed + 30};
  const Fbm wave{20.0F, 2, 0.5F, seed + 36};
  const Fbm crack{380.0F, 4, 0.5F, seed + 40};

  Field tone = Painted(sheet, [&](Spot p) {
    const Spot q = uneven(grown(p));
    const CellSample cup = cups.WithEdge(q.fx, q.fy * 1.05F);
    const float wall = cup.edge * kPeriod;
    const float eyeX = cup.dx + 0.10F * (Unit(Hash(cup.hash + 1)) - 0.5F);
    const float eyeY = cup.dy + 0.10F * (Unit(Hash(cup.hash + 2)) - 0.5F);
    const float out = Length(eyeX, eyeY);
    const float share = out / (out + cup.edge + 1e-3F);  // 0 at the eye, 1 at the wall
    const float m = mud(p);
    const int ribs = 17 + static_cast<int>(Unit(Hash(cup.hash + 3)) * 7.0F);
    const float turn = Turn(eyeX, eyeY) * static_cast<float>(ribs) + 0.05F * wave(p) +
                       0.5F * share * (cup.id - 0.5F);
    const float toLong = Abs(Fraction(turn) - 0.5F);
    const float toShort = 0.5F - toLong;
    // Ribs keep their breadth in pixels, so they crowd towards the eye.
    const float pitch = Max(out * kPeriod * kTau / static_cast<float>(ribs), 1.0F);
    const float half = 2.1F + 0.6F * m;
    const float longRib =
        SmoothRamp(half + 1.2F, half - 1.2F, toLong * pitch) * SmoothRamp(0.20F, 0.34F, share);
    const float shortRib = SmoothRamp(half + 0.4F, half - 1.6F, toShort * pitch) *
                           SmoothRamp(0.60F, 0.74F, share + 0.05F * m);
    const float between =
        0.50F + 0.30F * (Unit(Hash(cup.hash + 5)) - 0.5F) + 0.12F * m - 0.12F * (1.0F - share);
    const float rib = 0.80F + 0.08F * m;
    float value = Mix(between, rib, 0.80F * Max(longRib, 0.8F * shortRib));
    // A ring of blisters half way, and the eye.
    value -= 0.10F * Exp(-Square((share - 0.55F - 0.05F * m) / 0.07F)) * (1.0F - longRib);
    const float eye = SmoothRamp(0.30F, 0.13F, share + 0.06F * m);
    value = Mix(value, 0.14F + 0.05F * m, eye);
    value = Mix(value, 0.62F, 0.55F * SmoothRamp(0.07F, 0.02F, share));
    const float seam = SmoothRamp(4.6F, 3.2F, wall) * (0.9F + 0.25F * m);
    value = Mix(value, 0.93F, seam);
    value = Mix(value, 0.30F, 0.9F * SmoothRamp(1.8F, 0.5F, wall));
    const float old = Exp(-Square(crack(p) / 0.006F)) * SmoothRamp(0.0F, 0.3F, polish(p));
    value = Mix(value, 0.94F, 0.7F * old);
    return value + 0.08F * polish(p) + 0.035F * grain(p);
  });
  Soften(sheet, tone, 0.45F);
  StretchTo(sheet, tone, 0.003F, 0.997F);
  return tone;
}

const RegisteredTexture kFossilCoral(TextureRecipe{
    .name = "Fossil_Coral",
    .set = TextureSet::kQuarry,
    .effects = {"Stone/Minerals", "Animal Patterns", "Texture (Medium)"},
    .seed = 2090,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
