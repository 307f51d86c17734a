// Crocodile: glazed crocodile, as on an old travelling bag. Broad belly plates
// in rows down the middle, rounder and smaller ones towards the flanks, deep
// creases between them, and the glaze rubbed on what stands out.
//
// What makes it read as that: three sizes of plate that take over from one
// another along ragged lines, a pore on some of them, fine wrinkles on the
// plates and a gleam that follows their bulge.
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
  float edge = 0.0F;  // pixels to the crease
  float size = 0.0F;  // pixels, of plates of this kind
  std::uint32_t hash = 0;
  float dx = 0.0F, dy = 0.0F;  // from its middle, pixels
};

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const Warp bent{44.0F, {460.0F, 3, 0.5F, seed}};
  const Warp uneven{5.0F, {40.0F, 3, 0.55F, seed + 5}};
  const Cells belly{150.0F, 0.34F, seed + 10};
  const Cells side{92.0F, 0.62F, seed + 11};
  const Cells flank{52.0F, 0.85F, seed + 12};
  const Fbm wrinkle{13.0F, 4, 0.60F, seed + 16};
  const Fbm fine{2.6F, 2, 0.7F, seed + 22};
  const Fbm swell{300.0F, 3, 0.5F, seed + 26};
  const Fbm dye{360.0F, 5, 0.55F, seed + 30};
  const Fbm border{170.0F, 3, 0.5F, seed + 36};

  // Which kind of plate lies at a place, and which plate: the middle of a plate
  // decides for all of it.
  const auto zone = [&](float x, float y) { return Abs(x / width - 0.52F) + 0.05F * border(x, y); };
  const auto kindAt = [&](const Spot& q) {
    const CellSample a = belly(q.fx * 0.86F, q.fy * 1.36F);
    if (zone(q.fx + a.dx * 174.0F, q.fy + a.dy * 110.0F) < 0.20F) return 0;
    const CellSample b = side(q.fx, q.fy * 1.08F);
    return zone(q.fx + b.dx * 92.0F, q.fy + b.dy * 85.0F) < 0.355F ? 1 : 2;
  };
  const Field kind =
      Painted(sheet, [&](Spot p) { return static_cast<float>(kindAt(uneven(bent(p)))); });
  // Kinds part along a crease like any two plates.
  Field rim = Painted(sheet, [&](Spot p) {
    const float here = kind(p);
    const bool parts = kind.Clamped(p.x + 1, p.y) != here || kind.Clamped(p.x, p.y + 1) != here;
    return parts ? 1.0F : 0.0F;
  });
  rim = DistanceTo(sheet, rim);
  const Survey<Plate> plates(sheet, [&](Spot p) {
    const Spot q = uneven(bent(p));
    const float toRim = rim(p);
    if (kind(p) < 0.5F) {
      const CellSample a = belly.WithEdge(q.fx * 0.86F, q.fy * 1.36F);
      return Plate{Min(a.edge * 125.0F, toRim), 125.0F, a.hash, -a.dx * 174.0F, -a.dy * 110.0F};
    }
    if (kind(p) < 1.5F) {
      const CellSample b = side.WithEdge(q.fx, q.fy * 1.08F);
      return Plate{Min(b.edge * 88.0F, toRim), 88.0F, b.hash, -b.dx * 92.0F, -b.dy * 85.0F};
    }
    const CellSample c = flank.WithEdge(q.fx, q.fy);
    return Plate{Min(c.edge * 52.0F, toRim), 52.0F, c.hash, -c.dx * 52.0F, -c.dy * 52.0F};
  });
  const Field skin = Painted(sheet, [&](Spot p) { return wrinkle(p); });
  const Field grit = Painted(sheet, [&](Spot p) { return fine(p); });
  // The hide has no sharp ridge: a plate bulges as one.
  Field bulge = Painted(sheet, [&](Spot p) {
    const Plate& at = plates(p);
    const float full = 0.75F + 0.5F * Unit(Hash(at.hash + 1));
    return Sqrt(SmoothRamp(0.0F, 0.26F, at.edge / at.size)) * full * (0.09F * at.size + 3.0F);
  });
  Blur(sheet, bulge, 3.0F);
  const Field height = Painted(sheet, [&](Spot p) {
    const Plate& at = plates(p);
    const float dome = Min(bulge(p) / 9.0F, 1.0F);
    const float lean =
        ((Unit(Hash(at.hash + 2)) - 0.5F) * at.dx + (Unit(Hash(at.hash + 3)) - 0.5F) * at.dy) *
        0.05F;
    const bool pored = Unit(Hash(at.hash + 4)) < 0.45F;
    const float px = at.dx - 0.14F * at.size * (Unit(Hash(at.hash + 5)) - 0.5F);
    const float py = at.dy - 0.20F * at.size;
    const float pore = pored ? Exp(-(px * px + py * py) / 7.0F) : 0.0F;
    return bulge(p) + lean + 1.0F * skin(p) * (1.2F - 0.7F * dome) + 0.12F * grit(p) - 1.6F * pore +
           5.0F * swell(p);
  });
  const Field light = Relief(sheet, height, 0.60F);
  Field tone = Painted(sheet, [&](Spot p) {
    const Plate& at = plates(p);
    const float crease = SmoothRamp(0.06F * at.size + 1.5F, 0.0F, at.edge);
    const float top = SmoothRamp(0.06F, 0.34F, at.edge / at.size);
    float value = 0.30F + 0.10F * (Unit(Hash(at.hash + 7)) - 0.5F) + 0.10F * dye(p) +
                  0.06F * skin(p) + 0.16F * top;
    value += 0.32F * light(p);
    value += 0.34F * SmoothRamp(0.18F, 0.62F, light(p)) * top;
    value += 0.10F * top * SmoothRamp(0.0F, 0.5F, swell(p));
    return value * (1.0F - 0.80F * crease) + 0.015F * grit(p);
  });
  Soften(sheet, tone, 0.45F);
  StretchTo(sheet, tone, 0.003F, 0.996F);
  return tone;
}

const RegisteredTexture kCrocodile(TextureRecipe{
    .name = "Crocodile",
    .set = TextureSet::kHidesAndCloth,
    .effects = {"Leather", "Animal Patterns", "Texture (Heavy)"},
    .seed = 2200,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
