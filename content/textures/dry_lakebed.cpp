// Dry_Lakebed: mud that dried in the sun until it broke into plates. The first
// cracks run deep and wide; thinner ones split the plates again later; rims
// curl up, skins flake, and blown sand lies in the gaps.
//
// What makes it read as that: two ages of cracks, the younger ones ending on
// the older; plates dished like saucers, each with its own lean; walls of the
// cracks in shadow on one side and lit on the other.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

struct Plate {
  float wide = 0.0F;    // pixels to an old crack
  float narrow = 0.0F;  // pixels to a young one
  std::uint32_t hash = 0;
  float dx = 0.0F, dy = 0.0F;
};

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Warp torn{26.0F, {90.0F, 5, 0.58F, seed}};
  const Cells large{270.0F, 0.95F, seed + 6};
  const Cells small{104.0F, 1.0F, seed + 7};
  const Fbm open{330.0F, 3, 0.5F, seed + 8};
  const Fbm silt{5.0F, 3, 0.7F, seed + 9};
  const Fbm lump{46.0F, 4, 0.58F, seed + 10};
  const Fbm stain{360.0F, 5, 0.55F, seed + 11};
  const Spots bubbles{26.0F, 0.35F, 1.0F, 4.0F, seed + 12};

  const Survey<Plate> plates(sheet, [&](Spot p) {
    const Spot q = torn(p);
    const CellSample a = large.WithEdge(q.fx, q.fy * 1.08F);
    // Shifted with each plate, so that young cracks end on old ones.
    const float shift = Unit(Hash(a.hash)) * 5000.0F;
    const CellSample b = small.WithEdge(q.fx + shift, q.fy);
    return Plate{a.edge * 270.0F, b.edge * 104.0F, a.hash ^ b.hash, a.dx * 0.5F + b.dx,
                 a.dy * 0.5F + b.dy};
  });
  const Field gap = Painted(sheet, [&](Spot p) {
    const Plate& at = plates(p);
    const float o = open(p);
    const float wide = 4.6F + 4.0F * o;
    const float narrow = 1.3F + 2.6F * o;
    return Max(SmoothRamp(wide + 2.0F, wide - 1.5F, at.wide),
               SmoothRamp(narrow + 1.3F, narrow - 1.3F, at.narrow));
  });
  const Field height = Painted(sheet, [&](Spot p) {
    const Plate& at = plates(p);
    const float rim = 3.4F * Exp(-at.wide / 26.0F) + 2.0F * Exp(-at.narrow / 15.0F);
    const float lean =
        (Unit(Hash(at.hash + 1)) - 0.5F) * at.dx + (Unit(Hash(at.hash + 2)) - 0.5F) * at.dy;
    return rim + 9.0F * lean + 1.3F * lump(p) + 0.42F * silt(p) -
           1.1F * SmoothRamp(0.0F, 0.5F, bubbles(p).depth) - 7.0F * gap(p);
  });
  const Field light = Relief(sheet, height, 0.42F);
  Field tone = Painted(sheet, [&](Spot p) {
    const Plate& at = plates(p);
    float value = 0.68F + 0.16F * (Unit(Hash(at.hash + 5)) - 0.5F) + 0.12F * stain(p) +
                  0.07F * lump(p) + 0.05F * silt(p);
    value += 0.12F * Exp(-Min(at.wide * 0.7F, at.narrow) / 9.0F);
    value += 0.34F * light(p) * (1.0F - 0.5F * gap(p));
    const float depth = gap(p) * (0.88F - 0.22F * silt(p));
    return value * (1.0F - 0.92F * depth);
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.002F, 0.997F);
  return tone;
}

const RegisteredTexture kDryLakebed(TextureRecipe{
    .name = "Dry_Lakebed",
    .set = TextureSet::kQuarry,
    .effects = {"Stone/Minerals", "Erosion (Heavy)", "Texture (Heavy)"},
    .seed = 2050,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
