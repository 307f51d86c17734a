// Shagreen: the skin of a ray, ground flat and dyed, as on a writing box. Beads
// of enamel stand wall to wall; along the back they are large, with a few
// pearls on the very line, and towards the rims they shrink to grains.
//
// What makes it read as that: round beads cut level, so that each is a pale
// disc with a dark seam of dye; sizes that run out smoothly from one line.
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

struct Bead {
  float edge = 0.0F;  // pixels inside its rim
  float size = 0.0F;  // its radius
  std::uint32_t hash = 0;
};

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float tall = static_cast<float>(sheet.height);
  const std::vector<Piece> beads = Packed(
      sheet, {.maxRadius = 38.0F, .minRadius = 9.0F, .gap = 1.0F, .effort = 7.0F, .sizes = 16},
      seed);
  const Cells grains{17.5F, 0.72F, seed + 5};
  const Warp uneven{3.0F, {30.0F, 3, 0.55F, seed + 6}};
  const Fbm line{620.0F, 2, 0.5F, seed + 12};
  const Fbm mottle{7.0F, 4, 0.66F, seed + 16};
  const Fbm dye{300.0F, 5, 0.55F, seed + 20};
  const Fbm nick{14.0F, 3, 0.6F, seed + 26};

  // How far from the line of the back, in shares of the width.
  const auto aside = [&](float x, float y) {
    return Abs(x / width - 0.46F - 0.10F * (y / tall - 0.5F) + 0.03F * line(x, y));
  };
  const Field rough = Painted(sheet, [&](Spot p) { return nick(p); });
  std::vector<Bead> found(static_cast<std::size_t>(sheet.width) *
                          static_cast<std::size_t>(sheet.height));
  const auto at = [&](const Spot& p) -> Bead& {
    return found[static_cast<std::size_t>(p.y) * static_cast<std::size_t>(sheet.width) +
                 static_cast<std::size_t>(p.x)];
  };
  // The larger a bead, the nearer to the line it has to be.
  std::vector<Piece> kept;
  for (const Piece& bead : beads) {
    const float room = Clamp01((38.0F - bead.radius) / 29.0F);
    const float luck = 0.75F + 0.5F * Unit(Hash(bead.hash + 1));
    const float reach = (0.004F + 0.25F * room * room * room) * luck;
    if (aside(bead.x, bead.y) < reach) kept.push_back(bead);
  }
  ForPieces(sheet, kept, 1.3F, [&](const Piece& bead, Spot p, float dx, float dy) {
    const float stretch = 0.94F + 0.12F * Unit(Hash(bead.hash + 2));
    const float r = Length(dx * stretch, dy / stretch);
    const float edge = (1.06F - r) * bead.radius + 0.8F * rough(p);
    Bead& here = at(p);
    if (here.size > 0.0F && edge < here.edge) return;
    if (edge > -4.0F) here = {edge, bead.radius, bead.hash};
  });
  // Grains fill what the beads leave.
  const Survey<Bead> all(sheet, [&](Spot p) {
    const Bead& here = at(p);
    if (here.size > 0.0F && here.edge > 0.0F) return here;
    const Spot q = uneven(p);
    const float finer = 1.0F + 0.5F * aside(p.fx, p.fy);
    const CellSample grain = grains.WithEdge((q.fx - 0.46F * width) * finer, q.fy);
    // One that a bead crowds out is cut short by it.
    float edge = Min(grain.edge, 0.52F - grain.f1 * 0.55F) * 17.5F;
    if (here.size > 0.0F) edge = Min(edge, -here.edge);
    return Bead{edge, 8.5F, grain.hash};
  });
  const Field height = Painted(sheet, [&](Spot p) {
    const Bead& bead = all(p);
    // Round at the shoulder, ground level on top.
    const float shoulder = 0.34F * bead.size + 1.5F;
    const float t = Clamp01(bead.edge / shoulder);
    return Sqrt(t * (2.0F - t)) * (2.0F + 0.22F * bead.size) + 0.16F * rough(p);
  });
  const Field light = Relief(sheet, height, 0.62F);
  Field tone = Painted(sheet, [&](Spot p) {
    const Bead& bead = all(p);
    const float luck = Unit(Hash(bead.hash + 5)) - 0.5F;
    const float top = SmoothRamp(0.4F, 2.6F, bead.edge);
    const float m = mottle(p);
    float value = 0.66F + 0.16F * luck + 0.10F * dye(p) + 0.05F * m;
    // Enamel is clearer in the middle of a bead.
    value += 0.10F * SmoothRamp(0.2F, 0.8F, bead.edge / bead.size);
    value -= 0.18F * SmoothRamp(0.22F, 0.52F, aside(p.fx, p.fy)) * (0.8F + dye(p));
    value += 0.26F * light(p);
    return Mix(0.13F + 0.05F * m + 0.05F * dye(p), value, top);
  });
  Soften(sheet, tone, 0.45F);
  StretchTo(sheet, tone, 0.003F, 0.997F);
  return tone;
}

const RegisteredTexture kShagreen(TextureRecipe{
    .name = "Shagreen",
    .set = TextureSet::kHidesAndCloth,
    .effects = {"Leather", "Animal Patterns", "Texture (Light)"},
    .seed = 2310,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
