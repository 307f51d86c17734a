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
      if (dice.Chance(0.16F)) drift = dice.Around(0.0F, 4.0F);
      drift *= 0.86F;
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

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float height = static_cast<float>(sheet.height);
  const Runs runs = MakeRuns(sheet, seed + 1);
  Field swept(sheet);
  runs.paths.Draw(sheet, swept, {.ragged = 2.0F, .raggedPeriod = 17.0F, .seed = seed + 2});
  Blur(sheet, swept, 2.2F);
  Field water(sheet);
  runs.beads.Draw(
      sheet, water,
      {.profile = StrokeProfile::kRound, .ragged = 1.2F, .raggedPeriod = 14.0F, .seed = seed + 3});

  // Drops are not round: each is drawn at a place moved by a slow noise.
  const Warp odd{7.0F, {34.0F, 3, 0.5F, seed + 10}};
  const Spots mist{9.0F, 0.62F, 1.2F, 3.6F, seed + 11};
  const Spots small{27.0F, 0.42F, 3.0F, 10.5F, seed + 12};
  const Spots large{92.0F, 0.26F, 11.0F, 27.0F, seed + 13};
  const Fbm shower{360.0F, 4, 0.55F, seed + 14};
  // Depth of water, in pixels; a drop is a flat dome.
  Field depth = Painted(sheet, [&](Spot p) {
    const Spot q = odd(p);
    const auto dome = [](const Spots::Hit& hit) {
      return hit.radius * Sqrt(Clamp01(1.0F - Square(1.0F - hit.depth))) *
             (hit.depth > 0.0F ? 1.0F : 0.0F);
    };
    const float many = shower(p);
    const Spots::Hit fine = mist(q);
    float wet = Unit(fine.hash) < 0.55F + 1.2F * many ? dome(fine) : 0.0F;
    const Spots::Hit mid = small(q);
    if (Unit(mid.hash) < 0.62F + 1.1F * many) wet = Max(wet, dome(mid));
    wet *= 1.0F - Min(1.0F, 1.3F * swept(p));
    return Max(Max(wet, dome(large(q)) * (1.0F - swept(p))), 10.0F * water(p));
  });
  Soften(sheet, depth, 0.4F);
  const Fbm world{520.0F, 4, 0.5F, seed + 20};
  const Fbm film{90.0F, 4, 0.6F, seed + 21};
  Field tone = Painted(sheet, [&](Spot p) {
    // The street below is dark, the sky above bright; fog on the pane hides both.
    const float view = SmoothRamp(1.15F, -0.1F, p.fy / height) + 0.30F * world(p);
    float value = 0.66F + 0.20F * (view - 0.5F) + 0.05F * film(p);
    value = Mix(value, 0.44F + 0.40F * (view - 0.5F), 0.60F * swept(p));
    const float there = depth(p);
    if (there > 0.05F) {
      const Slope slope = SlopeAt(depth, p.x, p.y);
      // Upper flanks (rising downwards) show the street, lower ones the sky.
      const float tilt = Clamp(0.62F * slope.y + 0.22F * slope.x, -1.0F, 1.0F);
      const float steep = Min(1.0F, 0.42F * Length(slope.x, slope.y));
      float drop = 0.60F - 0.46F * tilt;
      drop -= 0.40F * steep * steep;
      const float glint = SmoothRamp(0.35F, 0.75F, 0.55F * (slope.y + slope.x)) *
                          SmoothRamp(1.5F, 3.5F, there) *
                          SmoothRamp(1.7F, 0.9F, Length(slope.x, slope.y));
      drop = Mix(drop, 1.05F, 0.8F * glint);
      value = Mix(value, drop, SmoothRamp(0.05F, 1.4F, there));
    }
    return value;
  });
  Soften(sheet, tone, 0.3F);
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
