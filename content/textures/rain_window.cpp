// Rain_Window: a pane in a shower, seen against an overcast sky. Drops of every
// size sit where they fell; some grew too heavy, ran down in a crooked path and
// swept it clear, and left a string of beads behind.
//
// What makes it read as that: every drop shows the view upside down, dark above
// and bright below, with a fine dark rim; paths that are empty of small drops.
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

struct Runs {
  StrokeSet paths;  // swept clear
  StrokeSet beads;  // what is left in them, and the drops at their ends
};

Runs MakeRuns(const Sheet& sheet, std::uint32_t seed) {
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  Runs runs;
  const int count = FloorInt(34.0F * width * height / (2048.0F * 1536.0F)) + 2;
  for (int i = 0; i < count; ++i) {
    Dice dice(seed, i);
    float x = dice.Unit() * width;
    float y = dice.Between(-0.4F, 0.8F) * height;
    const float length = dice.Between(140.0F, 1150.0F);
    const float radius = dice.Between(5.5F, 11.5F);
    std::vector<StrokePoint> path;
    float drift = 0.0F;
    float nextBead = dice.Between(10.0F, 60.0F);
    for (float along = 0.0F; along < length; along += 9.0F) {
      path.push_back({x, y, radius * (0.75F + 0.25F * along / length), 1.0F});
      if (along > nextBead) {
        nextBead = along + dice.Between(14.0F, 95.0F);
        const float bead = radius * dice.Between(0.22F, 0.7F);
        const float stretch = bead * dice.Between(0.0F, 1.6F);
        const StrokePoint drop[] = {{x, y - stretch, bead * 0.8F, 1.0F}, {x, y, bead, 1.0F}};
        runs.beads.Add(drop);
      }
      // It stops at what is in its way, goes aside to the next drop and on from there.
      if (dice.Chance(0.20F)) drift = dice.Around(0.0F, 8.5F);
      drift *= 0.80F;
      x += drift;
      y += 9.0F;
    }
    runs.paths.Add(path);
    const StrokePoint head[] = {{x, y - 1.5F * radius, radius * 0.75F, 1.0F},
                                {x, y + 2.0F, radius * 1.22F, 1.0F}};
    runs.beads.Add(head);
  }
  return runs;
}

constexpr float kNoMiddle = 9.0F;

struct Drop {
  float depth = 0.0F;  // pixels of water
  float low = 0.0F;    // -1 at its top to 1 at its foot; kNoMiddle in a run
  float right = 0.0F;  // -1..1
};

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float height = static_cast<float>(sheet.height);
  const Runs runs = MakeRuns(sheet, seed + 1);
  Field swept(sheet);
  runs.paths.Draw(sheet, swept, {.ragged = 1.6F, .raggedPeriod = 17.0F, .seed = seed + 2});
  Blur(sheet, swept, 2.2F);
  Field water(sheet);
  runs.beads.Draw(
      sheet, water,
      {.profile = StrokeProfile::kRound, .ragged = 1.2F, .raggedPeriod = 24.0F, .seed = seed + 3});

  // Drops are not round: each is drawn at a place moved by a slow noise.
  const Warp odd{8.0F, {64.0F, 1, 0.5F, seed + 10}};
  const Spots mist{9.0F, 0.62F, 1.2F, 3.6F, seed + 11};
  const Spots small{27.0F, 0.42F, 3.0F, 10.5F, seed + 12};
  const Spots large{92.0F, 0.26F, 11.0F, 27.0F, seed + 13};
  const Fbm shower{360.0F, 4, 0.55F, seed + 14};
  const Survey<Drop> drops(sheet, [&](Spot p) {
    const Spot q = odd(p);
    const auto drop = [](const Spots::Hit& hit) {
      // A flat dome.
      const float depth = hit.depth > 0.0F ? Sqrt(Clamp01(1.0F - Square(1.0F - hit.depth))) : 0.0F;
      return Drop{hit.radius * depth, hit.dy, hit.dx};
    };
    const float many = shower(p);
    const float swept01 = Min(1.0F, 1.3F * swept(p));
    Drop best;
    const auto offer = [&](Drop other, float share) {
      other.depth *= share;
      if (other.depth > best.depth) best = other;
    };
    const Spots::Hit fine = mist(q);
    if (Unit(fine.hash) < 0.55F + 1.2F * many) offer(drop(fine), 1.0F - swept01);
    const Spots::Hit mid = small(q);
    if (Unit(mid.hash) < 0.62F + 1.1F * many) offer(drop(mid), 1.0F - swept01);
    offer(drop(large(q)), 1.0F);
    if (10.0F * water(p) > best.depth) best = {10.0F * water(p), kNoMiddle, 0.0F};
    return best;
  });
  Field depth = Painted(sheet, [&](Spot p) { return drops(p).depth; });
  Soften(sheet, depth, 0.4F);
  const Fbm world{520.0F, 4, 0.5F, seed + 20};
  const Fbm film{90.0F, 4, 0.6F, seed + 21};
  Field tone = Painted(sheet, [&](Spot p) {
    // The street below is dark, the sky above bright; fog on the pane hides both.
    const float view = SmoothRamp(1.15F, -0.1F, p.fy / height) + 0.30F * world(p);
    float value = 0.56F + 0.34F * (view - 0.5F) + 0.05F * film(p);
    value = Mix(value, 0.36F + 0.50F * (view - 0.5F), 0.75F * swept(p));
    // Softened water reaches a hair beyond the drop it belongs to.
    const float there = Min(depth(p), 2.0F * drops(p).depth);
    if (there > 0.05F) {
      const Slope slope = SlopeAt(depth, p.x, p.y);
      // Upper flanks (rising downwards) show the street, lower ones the sky.
      const float tilt = Clamp(0.62F * slope.y + 0.22F * slope.x, -1.0F, 1.0F);
      const float steep = Min(1.0F, 0.42F * Length(slope.x, slope.y));
      const Drop& at = drops(p);
      const float low =
          at.low == kNoMiddle ? Clamp(-0.7F * slope.y, -1.0F, 1.0F) : at.low + 0.2F * at.right;
      // The view stands on its head: street above, sky below, a bent skyline between.
      const float skyline = low - 0.22F + 0.5F * Square(at.right);
      float drop = 0.17F + 0.20F * (low + 1.0F) + 0.46F * SmoothRamp(-0.34F, 0.34F, skyline);
      drop -= 0.24F * tilt + 0.34F * steep * steep;
      const float glint = SmoothRamp(0.35F, 0.75F, 0.55F * (slope.y + slope.x)) *
                          SmoothRamp(1.5F, 3.5F, there) *
                          SmoothRamp(1.7F, 0.9F, Length(slope.x, slope.y));
      drop = Mix(drop, 1.10F, 0.9F * glint);
      value = Mix(value, drop, SmoothRamp(0.05F, 1.4F, there));
    }
    return value;
  });
  Soften(sheet, tone, 0.4F);
  StretchTo(sheet, tone, 0.003F, 0.997F);
  return tone;
}

const RegisteredTexture kRainWindow(TextureRecipe{.name = "Rain_Window",
                                                  .set = TextureSet::kWeatherStation,
                                                  .effects = {"Ephemeral", "Texture (Medium)"},
                                                  .seed = 3031,
                                                  .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
