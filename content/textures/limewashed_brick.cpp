// Limewashed_Brick: a yard wall limewashed every spring for a century, then
// left. The wash holds in the joints and on the sound bricks and has come off
// the faces that crumble.
//
// What makes it read as that: hand-made bricks with knocked corners, no two of
// a length, in a bond with headers; coats of wash, one over the other, that
// break along the arrises; brush marks that ignore the joints.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/peel.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

struct BrickPlace {
  float edge = 0.0F;  // pixels inside the brick's outline; negative in the joint
  float u = 0.0F, v = 0.0F;
  std::uint32_t hash = 0;
};

constexpr float kCourse = 88.0F;
constexpr float kJoint = 13.0F;

// The brick at a place: courses of unequal height, stretchers with a header
// now and then.
BrickPlace BrickAt(float x, float y, std::uint32_t seed) {
  int course = FloorInt(y / kCourse);
  const auto lineOf = [&](int i) {
    return (static_cast<float>(i) + 0.10F * (Unit(HashAt(i, 1, seed)) - 0.5F)) * kCourse +
           5.0F * LineNoise(x / 300.0F, HashAt(i, 2, seed));
  };
  if (y < lineOf(course)) --course;
  if (y >= lineOf(course + 1)) ++course;
  const float top = lineOf(course);
  const float bottom = lineOf(course + 1);
  // Pairs of a stretcher and a half with a joint that slips about.
  constexpr float kBrick = 236.0F;
  const std::uint32_t h = HashAt(course, 3, seed);
  const bool headers = Unit(h) < 0.28F;
  const float length = headers ? 0.5F * kBrick : kBrick;
  const float shift = (course % 2 == 0 ? 0.0F : 0.5F * length) + 36.0F * Unit(Hash(h + 1));
  int brick = FloorInt((x - shift) / length);
  const auto joint = [&](int i) {
    return shift +
           (static_cast<float>(i) + 0.16F * (Unit(HashAt(i, course, seed + 4)) - 0.5F)) * length;
  };
  if (x < joint(brick)) --brick;
  if (x >= joint(brick + 1)) ++brick;
  const float left = joint(brick);
  const float right = joint(brick + 1);
  BrickPlace place;
  place.hash = HashAt(brick, course, seed + 5);
  const float half = 0.5F * kJoint;
  const float dx = Min(x - left, right - x) - half - 2.5F * Unit(Hash(place.hash + 1));
  const float dy = Min(y - top, bottom - y) - half - 2.5F * Unit(Hash(place.hash + 2));
  // Knocked corners: round them off.
  constexpr float kCorner = 9.0F;
  const float cx = Min(dx - kCorner, 0.0F);
  const float cy = Min(dy - kCorner, 0.0F);
  place.edge = Min(Min(dx, dy), kCorner - Length(cx, cy));
  place.u = x - left;
  place.v = y - top;
  return place;
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Warp nibbled{5.0F, {26.0F, 4, 0.64F, seed}};
  const Fbm weather{430.0F, 5, 0.55F, seed + 10};
  const Fbm crumb{24.0F, 4, 0.64F, seed + 20};
  const Fbm grain{4.5F, 3, 0.72F, seed + 26};
  const Fbm brush{5.0F, 3, 0.62F, seed + 30};
  const Fbm lie{180.0F, 2, 0.5F, seed + 34};
  const Fbm soot{360.0F, 5, 0.58F, seed + 38};
  const Spots stones{13.0F, 0.45F, 1.0F, 4.0F, seed + 46};

  const Field coarse = Painted(sheet, [&](Spot p) { return crumb(p); });
  const Field fine = Painted(sheet, [&](Spot p) { return grain(p); });
  const Survey<BrickPlace> bricks(sheet, [&](Spot p) {
    const Spot q = nibbled(p);
    return BrickAt(q.fx + 120.0F, q.fy + 40.0F + 0.006F * q.fx, seed + 50);
  });
  const Field loss = Painted(sheet, [&](Spot p) {
    const BrickPlace& at = bricks(p);
    const bool face = at.edge > 0.0F;
    const float soft = Unit(Hash(at.hash + 6)) - 0.5F;
    const float arris = Exp(-Square((at.edge - 3.0F) / 6.0F));
    return 0.85F * weather(p) + (face ? 0.42F * soft : -0.26F) + 0.24F * arris + 0.30F * coarse(p) +
           0.06F * fine(p);
  });
  const PeelingCoat last =
      Peel(sheet, loss, {.at = 0.00F, .softness = 0.05F, .curl = 5.0F, .thickness = 2.5F});
  const PeelingCoat old =
      Peel(sheet, loss, {.at = 0.22F, .softness = 0.10F, .curl = 5.0F, .thickness = 2.0F});

  const Field sweep = Painted(sheet, [&](Spot p) {
    const float bend = lie(p);
    return brush(p.fx * 0.07F + 2.0F * bend, p.fy + 9.0F * bend);
  });
  const Field height = Painted(sheet, [&](Spot p) {
    const BrickPlace& at = bricks(p);
    const float face = SmoothRamp(-2.0F, 5.0F, at.edge);
    const float lean = 0.012F * (Unit(Hash(at.hash + 7)) - 0.5F) * at.v +
                       0.006F * (Unit(Hash(at.hash + 8)) - 0.5F) * at.u;
    const float filled = 0.45F * old.cover(p) + 0.30F * last.cover(p);
    return (2.9F - filled) * face + lean + (0.75F - 0.35F * last.cover(p)) * coarse(p) +
           0.32F * (1.0F - 0.6F * last.cover(p)) * fine(p) + 0.9F * last.cover(p) +
           0.4F * old.cover(p) + 0.16F * sweep(p) * last.cover(p) +
           0.8F * (1.0F - face) * stones(p).depth;
  });
  const Field light = Relief(sheet, height, 0.34F);
  Field tone = Painted(sheet, [&](Spot p) {
    const BrickPlace& at = bricks(p);
    const float face = SmoothRamp(-1.5F, 1.5F, at.edge);
    const float fired = Unit(Hash(at.hash + 9));
    const float brick =
        0.24F + 0.20F * (fired - 0.4F) + 0.08F * coarse(p) + 0.07F * fine(p) + 0.05F * soot(p);
    const float mortar = 0.52F + 0.10F * coarse(p) + 0.08F * fine(p);
    float value = Mix(mortar, brick, face);
    value = Mix(value, 0.64F + 0.08F * coarse(p) + 0.05F * sweep(p), 0.88F * old.cover(p));
    value *= 1.0F - 0.25F * old.shadow(p) * (1.0F - last.cover(p));
    value = Mix(value, 0.90F + 0.08F * soot(p) + 0.06F * sweep(p) + 0.02F * fine(p), last.cover(p));
    value *= 1.0F - 0.45F * last.shadow(p);
    value += 0.24F * light(p);
    return value * (1.0F - 0.16F * (1.0F - face) * (1.0F - 0.4F * last.cover(p)));
  });
  Soften(sheet, tone, 0.45F);
  StretchTo(sheet, tone, 0.002F, 0.996F);
  return tone;
}

const RegisteredTexture kLimewashedBrick(TextureRecipe{
    .name = "Limewashed_Brick",
    .set = TextureSet::kWallsAndSigns,
    .effects = {"Distress (Heavy)", "Erosion (Medium)", "Weathered/Aged", "Stone/Minerals"},
    .seed = 2120,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
