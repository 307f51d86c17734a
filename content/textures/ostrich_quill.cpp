// Ostrich_Quill: ostrich leather, crown of the back. Where the quills were
// drawn stand full round bumps, each with its hole; the skin between them is
// smooth and pulled into fine creases.
//
// What makes it read as that: bumps crowd in the middle and thin out towards
// the flanks, all holes look the same way, creases run from bump to bump.
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/packing.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float tall = static_cast<float>(sheet.height);
  const std::vector<Piece> quills = Packed(
      sheet, {.maxRadius = 44.0F, .minRadius = 29.0F, .gap = -4.0F, .effort = 5.0F, .sizes = 5},
      seed);
  const Fbm flock{260.0F, 3, 0.5F, seed + 8};
  const Fbm crease{46.0F, 4, 0.55F, seed + 12};
  const Fbm fine{3.0F, 2, 0.7F, seed + 18};
  const Fbm dye{340.0F, 5, 0.55F, seed + 22};
  const Warp drawn{16.0F, {70.0F, 3, 0.5F, seed + 28}};
  const Cells pebble{8.0F, 1.0F, seed + 34};
  const Fbm swell{380.0F, 3, 0.5F, seed + 38};

  Field bump(sheet);
  Field hole(sheet);
  ForPieces(sheet, quills, 1.35F, [&](const Piece& quill, Spot p, float dx, float dy) {
    // The crown is a lozenge; outside it quills get rare.
    const float out = Abs(quill.x / width - 0.5F) * 1.5F + Abs(quill.y / tall - 0.48F) * 0.9F;
    const float luck = Unit(quill.hash);
    if (luck > 1.45F - 1.25F * out + 0.5F * flock(quill.x, quill.y)) return;
    const float size = 0.54F + 0.14F * Unit(Hash(quill.hash + 1)) - 0.10F * out;
    const float dxw = dx * (0.92F + 0.16F * Unit(Hash(quill.hash + 2)));
    const float r = Length(dxw, dy) / size;
    float* rise = bump.Row(p.y) + p.x;
    // A full dome on a broad foot.
    const float dome = (r < 1.0F ? 0.52F * Sqrt(1.0F - r * r) : 0.0F) + 0.48F * Exp(-0.8F * r * r);
    const float high = dome * quill.radius * 0.38F;
    if (high > *rise) *rise = high;
    const float hx = dxw / size - 0.10F;
    const float hy = dy / size + 0.34F;
    float* pit = hole.Row(p.y) + p.x;
    const float deep = SmoothRamp(0.24F, 0.08F, Length(hx, hy * 1.2F));
    if (deep > *pit) *pit = deep;
  });
  // Skin is drawn over a quill's foot, not cut around it.
  Blur(sheet, bump, 2.5F);
  const Field rise = Painted(sheet, [&](Spot p) { return swell(p); });
  const Field folds = Painted(sheet, [&](Spot p) {
    const Spot q = drawn(p);
    const float a = 1.0F - Abs(crease(q.fx, q.fy * 0.8F));
    const float b = 1.0F - Abs(crease(q.fx * 2.1F + 900.0F, q.fy * 1.7F));
    return Max(SmoothRamp(0.90F, 1.0F, a), 0.6F * SmoothRamp(0.88F, 1.0F, b));
  });
  const Field grain = Painted(sheet, [&](Spot p) {
    const CellSample cell = pebble(p.fx, p.fy);
    return SmoothRamp(0.0F, 0.4F, cell.f2 - cell.f1);
  });
  const Field height = Painted(sheet, [&](Spot p) {
    const float free = 1.0F - SmoothRamp(1.5F, 6.0F, bump(p));
    return bump(p) - 5.0F * hole(p) - 1.5F * folds(p) * free + 0.6F * grain(p) + 0.10F * fine(p) +
           14.0F * rise(p);
  });
  const Field light = Relief(sheet, height, 0.62F);
  Field tone = Painted(sheet, [&](Spot p) {
    const float top = SmoothRamp(3.0F, 11.0F, bump(p));
    float value = 0.46F + 0.10F * dye(p) + 0.02F * fine(p) - 0.07F * folds(p) * (1.0F - top);
    value += 0.38F * light(p) + 0.26F * SmoothRamp(0.30F, 0.68F, light(p)) * top;
    value += 0.05F * top;
    return value * (1.0F - 0.72F * hole(p));
  });
  Soften(sheet, tone, 0.45F);
  StretchTo(sheet, tone, 0.003F, 0.993F);
  return tone;
}

const RegisteredTexture kOstrichQuill(TextureRecipe{
    .name = "Ostrich_Quill",
    .set = TextureSet::kHidesAndCloth,
    .effects = {"Leather", "Animal Patterns", "Texture (Medium)"},
    .seed = 2240,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
