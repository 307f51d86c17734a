// Galvanised: a sheet dipped in molten zinc. The zinc froze in crystals as wide
// as a thumb, each a rosette of feathers that catch the light their own way;
// wet storage left white bloom, and handling left scratches.
//
// What makes it read as that: flakes of flat grey with straight inner borders
// and frayed outer ones, brightness that jumps from one to the next, feathers
// within each that run from its own middle.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/scratches.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"
#include "toolbox/turn.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Warp frayed{4.0F, {11.0F, 3, 0.6F, seed + 1}};
  const Warp drawn{22.0F, {340.0F, 2, 0.5F, seed + 2}};
  const Cells crystals{124.0F, 1.0F, seed + 3};
  const Fbm feather{4.2F, 2, 0.6F, seed + 4};
  const Fbm broad{15.0F, 2, 0.6F, seed + 5};
  const Field face = Painted(sheet, [&](Spot p) {
    const Spot q = frayed(drawn(p));
    const CellSample cell = crystals(q.fx, q.fy);
    const float x = -cell.dx * crystals.period;
    const float y = -cell.dy * crystals.period;
    // Six arms, of which each side of a crystal shows another.
    const float lean = Unit(Hash(cell.hash + 1));
    const float sixth = (Turn(x, y) + lean) * 6.0F;
    const int sector = FloorInt(sixth);
    const float arm = Abs(Fraction(sixth) - 0.5F);
    const std::uint32_t h = HashAt(((sector % 6) + 6) % 6, 1, cell.hash);
    const float angle =
        (static_cast<float>(sector) + (arm > 0.25F ? 0.0F : 0.5F)) * kTau / 6.0F - lean * kTau;
    const float across = y * Cos(angle) - x * Sin(angle);
    const float along = x * Cos(angle) + y * Sin(angle);
    const float lines = 0.6F * feather(along * 0.10F, across) + 0.5F * broad(along * 0.12F, across);
    const float own = Unit(Hash(cell.hash + 2));
    const float shine = 0.20F + 0.70F * own;
    return shine + 0.34F * (Unit(h) - 0.5F) + (0.10F + 0.20F * own) * lines -
           0.16F * SmoothRamp(0.15F, 0.75F, cell.f1);
  });
  StrokeSet marks;
  AddScratches(marks, sheet,
               {.count = 70,
                .minLength = 60.0F,
                .maxLength = 700.0F,
                .heading = 0.35F,
                .spread = 0.5F,
                .minRadius = 0.4F,
                .maxRadius = 1.2F,
                .companions = 3},
               seed + 10);
  AddScuffs(marks, sheet, {.count = 12, .heading = 0.35F, .spread = 0.5F}, seed + 11);
  Field scratch(sheet);
  marks.Draw(sheet, scratch);
  const Fbm bloom{210.0F, 6, 0.62F, seed + 20};
  const Fbm powder{7.0F, 3, 0.7F, seed + 21};
  const Fbm dull{480.0F, 4, 0.5F, seed + 22};
  Field tone = Painted(sheet, [&](Spot p) {
    float value = 0.10F + 0.66F * face(p) + 0.16F * dull(p) + 0.03F * powder(p);
    const float near = bloom(p) + 0.10F * powder(p);
    const float white = SoftThreshold(near, 0.56F, 0.20F);
    const float rim = SoftThreshold(near, 0.42F, 0.20F) * (1.0F - white);
    value *= 1.0F - 0.28F * rim;
    value = Mix(value, 0.82F + 0.14F * powder(p), 0.75F * white);
    return value + 0.26F * scratch(p) * (value < 0.55F ? 1.0F : -1.0F);
  });
  Soften(sheet, tone, 0.45F);
  StretchTo(sheet, tone, 0.004F, 0.996F);
  return tone;
}

const RegisteredTexture kGalvanised(TextureRecipe{
    .name = "Galvanised",
    .set = TextureSet::kForge,
    .effects = {"Metals", "Industrial", "Texture (Medium)"},
    .seed = 3012,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
