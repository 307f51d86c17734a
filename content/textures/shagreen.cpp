// Shagreen: the skin of a ray, ground flat and dyed, as on a writing box. Beads
// of enamel stand wall to wall; along the back they are large, with a few
// pearls on the very line, and towards the rims they shrink to grains.
//
// What makes it read as that: round beads cut level, so that each is a pale
// disc with a dark seam of dye; sizes that run out smoothly from one line.
#include <vector>

#include "builder/texture_recipe.h"
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

// The grains about a place: pixels from the rims of the nearest two.
struct Crowd {
  float first, second;
  float size;
  std::uint32_t hash;
};

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float tall = static_cast<float>(sheet.height);
  const std::vector<Piece> beads = Packed(
      sheet, {.maxRadius = 38.0F, .minRadius = 9.0F, .gap = 1.0F, .effort = 7.0F, .sizes = 16},
      seed);
  // Grains are thrown, not set out: a lattice shows however its points are moved.
  const std::vector<Piece> grains = Packed(
      sheet, {.maxRadius = 11.5F, .minRadius = 5.2F, .gap = 0.5F, .effort = 6.0F, .sizes = 7},
      seed + 5);
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
  // No grain half under a bead: it would show as a sickle.
  std::vector<Piece> loose;
  for (const Piece& grain : grains) {
    const float x = Clamp(grain.x, 0.0F, width - 1.0F);
    const float y = Clamp(grain.y, 0.0F, tall - 1.0F);
    const Bead& under = at({static_cast<int>(x), static_cast<int>(y), x, y});
    if (under.size <= 0.0F || under.edge < -1.5F) loose.push_back(grain);
  }
  // Grains fill what the beads leave: each swells until it meets the next.
  std::vector<Crowd> crowds(found.size(), Crowd{1e9F, 1e9F, 0.0F, 0});
  ForPieces(sheet, loose, 2.6F, [&](const Piece& grain, Spot p, float dx, float dy) {
    const float stretch = 0.92F + 0.16F * Unit(Hash(grain.hash + 2));
    const float out = (Length(dx * stretch, dy / stretch) - 1.0F) * grain.radius;
    Crowd& here = crowds[static_cast<std::size_t>(p.y) * static_cast<std::size_t>(sheet.width) +
                         static_cast<std::size_t>(p.x)];
    if (out < here.first) {
      here = {out, here.first, grain.radius, grain.hash};
    } else if (out < here.second) {
      here.second = out;
    }
  });
  const Survey<Bead> all(sheet, [&](Spot p) {
    const Bead& here = at(p);
    if (here.size > 0.0F && here.edge > 0.0F) return here;
    const Crowd& crowd =
        crowds[static_cast<std::size_t>(p.y) * static_cast<std::size_t>(sheet.width) +
               static_cast<std::size_t>(p.x)];
    // One that a bead crowds out is cut short by it.
    float edge = Min(0.5F * (crowd.second - crowd.first) - 0.3F, 5.0F - crowd.first);
    if (here.size > 0.0F) edge = Min(edge, -here.edge);
    return Bead{edge + 0.5F * rough(p), crowd.size + 1.0F, crowd.hash};
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
