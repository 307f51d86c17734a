// Battleship: the side of a grey ship. Overlapping steel plates, rows of
// rivets, dents from fenders and buoys, many coats of thick paint with runs and
// chips, rust that weeps from under rivets and seams.
//
// What makes it read as that: rivets along every seam, plates that meet off
// line like bricks of unequal length, paint too thick to be flat, and a few
// wide dents that break the order.
//
// Dark is proud here and light is deep: the standard light of a surface comes
// from below left for light-is-high maps, and rivets should stand out under it.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

constexpr float kStrake = 430.0F;  // height of a row of plates, pixels
constexpr float kPlate = 980.0F;   // mean length of a plate

struct PlateSpot {
  std::uint32_t plate;  // which
  float u, v;           // pixels from its left and upper edge
  float toEnd, toFoot;  // pixels to its right and lower edge
};

PlateSpot PlateAt(float x, float y, std::uint32_t seed) {
  y += 150.0F;
  const int row = FloorInt(y / kStrake);
  const auto end = [&](int i) {
    return (static_cast<float>(i) + 0.5F * Unit(HashAt(i, row, seed)) +
            0.37F * static_cast<float>(row & 3)) *
           kPlate;
  };
  int i = FloorInt(x / kPlate) - 2;
  while (x >= end(i + 1)) ++i;
  const float v = y - static_cast<float>(row) * kStrake;
  return {HashAt(i, row, seed + 1), x - end(i), v, end(i + 1) - x, kStrake - v};
}

// A row of rivets `inset` pixels from an edge, `pitch` apart: distance from the
// nearest one's middle. `side` numbers the row for the place of each.
float RivetDistance(float along, float across, float inset, float pitch, std::uint32_t side) {
  const float n = along / pitch;
  const int i = FloorInt(n);
  const float jitter = 3.0F;
  const float cx =
      (static_cast<float>(i) + 0.5F) * pitch + jitter * (Unit(HashAt(i, 1, side)) - 0.5F);
  const float cy = inset + jitter * (Unit(HashAt(i, 2, side)) - 0.5F);
  return Length(along - cx, across - cy);
}

constexpr float kPitch = 58.0F, kInset = 27.0F, kRivet = 12.0F;

float NearestRivet(const PlateSpot& p) {
  float d = RivetDistance(p.u, p.v, kInset, kPitch, p.plate);
  d = Min(d, RivetDistance(p.u, p.toFoot, kInset, kPitch, p.plate + 1));
  d = Min(d, RivetDistance(p.v, p.u, kInset, kPitch, p.plate + 2));
  return Min(d, RivetDistance(p.v, p.toEnd, kInset, kPitch, p.plate + 3));
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Fbm coat{46.0F, 4, 0.5F, seed + 10};
  const Fbm orangePeel{7.0F, 2, 0.5F, seed + 11};
  const Fbm grit{2.6F, 2, 0.6F, seed + 12};
  const Fbm buckle{330.0F, 3, 0.45F, seed + 13};
  const Spots dents{300.0F, 0.45F, 30.0F, 140.0F, seed + 20};
  const Warp pushed{26.0F, {120.0F, 3, 0.5F, seed + 21}};
  const Fbm wear{150.0F, 5, 0.6F, seed + 30};
  const Warp torn{6.0F, {15.0F, 3, 0.6F, seed + 31}};
  const Spots chips{64.0F, 0.35F, 2.0F, 17.0F, seed + 32};

  // Where the paint is gone: in spots, at rivets and along seams.
  const Field chip = Painted(sheet, [&](Spot p) {
    const PlateSpot at = PlateAt(p.fx, p.fy, seed);
    const float seam = Min(Min(at.u, at.toEnd), Min(at.v, at.toFoot));
    const float rivet = NearestRivet(at);
    const float weak = 0.35F * Exp(-seam / 9.0F) + 0.28F * SmoothRamp(20.0F, 11.0F, rivet);
    const float worn = SoftThreshold(wear(torn(p)) + weak, 0.62F, 0.05F);
    const float spot = SoftThreshold(chips(torn(p)).depth, 0.2F, 0.12F);
    return Max(worn, spot * SoftThreshold(wear(p), 0.05F, 0.3F));
  });
  const Field weep = RunDown(
      chip, [&](Spot p) { return 0.988F + 0.011F * LineNoise(p.fx / 5.0F, seed + 40); },
      [&](Spot p) { return 0.2F * LineNoise(p.fy / 70.0F, seed + 41); });

  Field height = Painted(sheet, [&](Spot p) {
    const PlateSpot at = PlateAt(p.fx, p.fy, seed);
    // Upper plates lap over lower ones; ends butt with a narrow groove.
    const float lap = 0.22F * SmoothRamp(0.0F, 3.0F, at.toFoot) - 0.11F;
    const float groove = 0.30F * SmoothRamp(4.0F, 1.5F, Min(at.u, at.toEnd));
    const float level = 0.06F * (Unit(at.plate) - 0.5F);
    const float rivet = NearestRivet(at);
    const float dome = rivet < kRivet ? Sqrt(1.0F - Square(rivet / kRivet)) : 0.0F;
    const float dent = dents(pushed(p)).depth;
    float h = 0.5F + lap * SmoothRamp(60.0F, 0.0F, at.toFoot) + level - groove + 0.34F * dome;
    h -= 0.22F * dent * dent * (3.0F - 2.0F * dent);
    h += 0.10F * buckle(p) + 0.045F * coat(p) + 0.035F * orangePeel(p);
    h -= chip(p) * (0.14F - 0.10F * grit(p));
    h += 0.07F * weep(p) * (1.0F - chip(p));
    return h;
  });
  Repaint(sheet, height, [&](Spot p) { return 1.0F - height(p); });
  StretchTo(sheet, height, 0.001F, 0.999F);
  return height;
}

const RegisteredTexture kBattleship(TextureRecipe{
    .name = "Battleship",
    .set = TextureSet::kForge,
    .effects = {"Metals", "Industrial", "Texture (Medium)"},
    .seed = 1906,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
