// Battleship: the side of a grey ship. Steel plates that lap over each other,
// rivets along the laps, welds where repairs butted plates together, and coat
// upon coat of paint: it blisters, breaks off in steps, runs, and is gouged by
// fenders; bare places are rough with rust.
//
// What makes it read as that: rivets along every lap, plates unequal and off
// line, paint so thick that a chip has terraces like a map, and gouges and
// blisters that take no notice of the order.
//
// Dark is proud here and light is deep. The light of a fresh surface comes from
// below for a map whose heights are light, and people take light to come from
// above: drawn this way, a rivet stands out instead of looking pressed in.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/scratches.h"
#include "toolbox/stains.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

constexpr float kStrake = 410.0F;  // mean height of a row of plates, pixels
constexpr float kPlate = 1020.0F;  // mean length of a plate
constexpr float kPitch = 67.0F, kInset = 33.0F, kRivet = 17.0F;

struct PlateSpot {
  std::uint32_t plate;  // which
  float u, v;           // pixels from its left and upper edge
  float toEnd, toFoot;  // pixels to its right and lower edge
};

PlateSpot PlateAt(float x, float y, std::uint32_t seed) {
  // Shell plating is fair, not straight.
  y += 190.0F + 3.0F * LineNoise(x / 240.0F, seed + 2);
  // Rows as the yard had plates for: broad ones and narrow ones.
  const auto top = [&](int i) {
    return (static_cast<float>(i) + 0.72F * (Unit(HashAt(i, 5, seed + 3)) - 0.5F)) * kStrake;
  };
  int row = FloorInt(y / kStrake) - 1;
  while (y >= top(row + 1)) ++row;
  const auto end = [&](int i) {
    return (static_cast<float>(i) + 0.55F * Unit(HashAt(i, row, seed)) +
            0.37F * static_cast<float>(row & 3)) *
           kPlate;
  };
  int i = FloorInt(x / kPlate) - 3;
  while (x >= end(i + 1)) ++i;
  return {HashAt(i, row, seed + 1), x - end(i), y - top(row), end(i + 1) - x, top(row + 1) - y};
}

struct RivetSpot {
  float distance;  // pixels from the nearest rivet's middle
  float age;       // 0..1, one for each rivet
  float dx, dy;    // from its middle, pixels
};

// A hammered head, 0 at its rim to 1 on its crown, which sits below its middle:
// the flank that people expect in the light is the broad one.
float Dome(const RivetSpot& rivet) {
  if (rivet.distance >= kRivet) return 0.0F;
  constexpr float kOffX = 4.0F, kOffY = 8.0F;
  // The circle through this place, of those that shrink from the rim to the crown.
  const float px = rivet.dx - kOffX;
  const float py = rivet.dy - kOffY;
  const float b = px * kOffX + py * kOffY;
  const float a = kRivet * kRivet - kOffX * kOffX - kOffY * kOffY;
  const float s = Min(1.0F, (b + Sqrt(b * b + a * (px * px + py * py))) / a);
  return 1.0F - s * s;
}

// Laps are riveted twice, above and below the edge of the upper plate.
RivetSpot RivetAt(const PlateSpot& p) {
  RivetSpot nearest{1e9F, 0.0F, 0.0F, 0.0F};
  const float n = p.u / kPitch;
  const int i = FloorInt(n);
  for (int row = 0; row < 2; ++row) {
    const std::uint32_t h = HashAt(i, row, p.plate);
    const float across = row == 0 ? p.v : p.toFoot;
    const float cx = (static_cast<float>(i) + 0.5F) * kPitch + 4.0F * (Unit(h) - 0.5F);
    const float cy = kInset + 4.0F * (Unit(Hash(h)) - 0.5F);
    if (cx < 40.0F || p.u + p.toEnd - cx < 40.0F) continue;
    const float d = Length(p.u - cx, across - cy);
    const float dy = row == 0 ? across - cy : cy - across;
    if (d < nearest.distance) nearest = {d, Unit(Hash(h + 5)), p.u - cx, dy};
  }
  return nearest;
}

// The weld between two plates' ends: a bead of overlapping crescents.
float Weld(const PlateSpot& p, std::uint32_t seed) {
  const float aside = p.u < p.toEnd ? p.u : -p.toEnd;
  const float wander = 3.0F * LineNoise(p.v / 40.0F, seed) + 1.5F * LineNoise(p.v / 9.0F, seed + 1);
  const float t = (aside + wander) / 11.0F;
  if (Abs(t) >= 1.0F) return 0.0F;
  const float ripple = Fraction((p.v + 5.0F * t * t) / 8.0F);
  return Sqrt(1.0F - t * t) * (0.75F + 0.25F * ripple);
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Fbm lumps{30.0F, 3, 0.5F, seed + 10};
  const Fbm peel{8.0F, 3, 0.55F, seed + 11};
  const Fbm crust{11.0F, 4, 0.7F, seed + 12};
  const Fbm buckle{330.0F, 3, 0.45F, seed + 13};
  const Spots dents{420.0F, 0.5F, 40.0F, 190.0F, seed + 20};
  const Warp pushed{40.0F, {150.0F, 3, 0.5F, seed + 21}};
  const Fbm wear{260.0F, 6, 0.58F, seed + 30};
  const Warp torn{9.0F, {22.0F, 4, 0.6F, seed + 31}};
  const Spots chips{70.0F, 0.5F, 2.0F, 22.0F, seed + 32};
  const Spots blisters{26.0F, 0.55F, 2.0F, 10.0F, seed + 33};

  StrokeSet gouges;
  AddScuffs(gouges, sheet,
            {.count = 26,
             .minLength = 120.0F,
             .maxLength = 700.0F,
             .heading = 0.05F,
             .spread = 0.25F,
             .stray = 0.12F,
             .slender = 0.2F,
             .minLines = 3,
             .maxLines = 14,
             .minRadius = 0.7F,
             .maxRadius = 2.6F,
             .minStrength = 0.3F,
             .maxStrength = 1.0F},
            seed + 40);
  Field gouge(sheet);
  gouges.Draw(sheet, gouge, {.profile = StrokeProfile::kVee, .ragged = 0.6F, .seed = seed + 41});

  // Runs of paint from wherever too much was put on.
  StrokeSet runs;
  AddDrips(runs, sheet, {.count = 60, .minLength = 30.0F, .maxLength = 220.0F}, seed + 42);
  Field run(sheet);
  runs.Draw(sheet, run, {.profile = StrokeProfile::kRound});

  const Survey<PlateSpot> plates(sheet, [&](Spot p) { return PlateAt(p.fx, p.fy, seed); });
  const Survey<RivetSpot> rivets(sheet, [&](Spot p) { return RivetAt(plates(p)); });

  // How far the coats have gone: each coat ends at a level of its own.
  const Field worn = Painted(sheet, [&](Spot p) {
    const PlateSpot& at = plates(p);
    const RivetSpot& rivet = rivets(p);
    const Spot q = torn(p);
    const float lap = Min(at.v, at.toFoot);
    const float weak = 0.22F * Exp(-lap / 16.0F) +
                       0.34F * rivet.age * rivet.age * SmoothRamp(34.0F, 10.0F, rivet.distance);
    float chip = SmoothRamp(0.0F, 0.6F, chips(q).depth);
    if (chip > 0.0F) chip *= 0.55F * SoftThreshold(wear(p), -0.1F, 0.5F);
    return 0.07F + wear(q) + weak + chip + 0.25F * gouge(p);
  });

  // Pits that were painted over, in swarms.
  const Spots holes{15.0F, 0.6F, 1.2F, 6.5F, seed + 34};
  const Fbm swarm{140.0F, 4, 0.55F, seed + 35};
  const auto pit = [&](Spot p) {
    const float many = SoftThreshold(swarm(p), 0.20F, 0.35F);
    return many > 0.0F ? many * SmoothRamp(0.0F, 0.7F, holes(torn(p)).depth) : 0.0F;
  };

  Field height = Painted(sheet, [&](Spot p) {
    const PlateSpot& at = plates(p);
    const RivetSpot& rivet = rivets(p);
    const float w = worn(p);
    float h = 0.5F + 0.05F * (Unit(at.plate) - 0.5F) + 0.06F * buckle(p);
    // The upper plate laps over the lower one and falls off at its foot.
    h += 0.12F * SmoothRamp(60.0F, 0.0F, at.toFoot) - 0.12F * SmoothRamp(40.0F, 0.0F, at.v);
    const float dent = dents(pushed(p)).depth;
    h -= 0.16F * dent * dent * (3.0F - 2.0F * dent);
    h += 0.36F * Dome(rivet);
    h += 0.26F * Weld(at, at.plate);

    const float coats = SoftThreshold(w, 0.40F, 0.05F) + SoftThreshold(w, 0.52F, 0.05F) +
                        SoftThreshold(w, 0.62F, 0.05F);
    const float bare = SoftThreshold(w, 0.62F, 0.05F);
    const float rust = SoftThreshold(w, 0.70F, 0.06F);
    h -= 0.10F * coats;
    // Rims of broken coats stand up a little.
    h += 0.09F * SmoothRamp(0.34F, 0.40F, w) * SmoothRamp(0.415F, 0.40F, w);
    const float loose = SoftThreshold(w, 0.16F, 0.3F) * (1.0F - SoftThreshold(w, 0.40F, 0.05F));
    if (loose > 0.0F) h += 0.24F * Sqrt(blisters(torn(p)).depth * loose);
    h += (0.05F * lumps(p) + 0.075F * peel(p)) * (1.0F - bare) + 0.16F * run(p) * (1.0F - bare);
    if (bare > 0.0F) h += (0.12F + 0.14F * rust) * bare * crust(p);
    h -= 0.30F * pit(p);
    return h - 0.34F * gouge(p) * (1.0F - 0.5F * rust);
  });
  Repaint(sheet, height, [&](Spot p) { return 1.0F - height(p); });
  Soften(sheet, height, 0.45F);
  StretchTo(sheet, height, 0.0005F, 0.9995F);
  // Light sees slopes alone: the range goes to what lies near the level of the
  // plates, and rivets and pits give some of theirs.
  const float level = Percentile(height, 0.5F, 0.0F, 1.0F);
  Repaint(sheet, height, [&](Spot p) {
    const float off = (height(p) - level) * 2.0F;
    return 0.5F + 0.5F * off * 2.1F / (1.0F + 1.1F * Abs(off));
  });
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
