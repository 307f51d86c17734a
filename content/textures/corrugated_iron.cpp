// Corrugated_Iron: the side of a shed. Sheets overlap; rust began at their
// lower rims and around the nails, ran down over the crests and left the
// troughs grey a while longer.
//
// What makes it read as that: soft rounds of light and shade from top to
// bottom, rims that cut across them, rust that is ragged upwards where it grows
// and drawn out downwards where it ran.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

constexpr float kWave = 118.0F;
constexpr float kCourse = 690.0F;  // from rim to rim, down the wall

struct Course {
  float below;  // pixels under the rim of the sheet above
  float wave;   // -1 in a trough, 1 on a crest
  float crest;  // number of the wave, counted from the left
  std::uint32_t hash;
};

Course CourseAt(float x, float y, std::uint32_t seed) {
  const float v = y + 190.0F;
  const int row = FloorInt(v / kCourse);
  const float aside = kWave * Unit(HashAt(row, 1, seed)) * 0.22F;
  const float turn = (x + aside) / kWave;
  const int sheetNumber = FloorInt((turn + 3.0F * Unit(HashAt(row, 2, seed))) / 8.0F);
  return {v - static_cast<float>(row) * kCourse, Cos(turn * kTau), turn,
          HashAt(row, sheetNumber, seed + 3)};
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Fbm dents{330.0F, 3, 0.5F, seed + 1};
  const Fbm rim{150.0F, 4, 0.6F, seed + 2};
  const Survey<Course> wall(sheet, [&](Spot p) {
    return CourseAt(p.fx + 9.0F * dents(p), p.fy + 9.0F * rim(p.fx, p.fy * 0.05F), seed);
  });
  // Nails: on every second crest or so, a hand's breadth above each rim.
  StrokeSet heads;
  StrokeSet sources;
  for (int row = 0; static_cast<float>(row) * kCourse < static_cast<float>(sheet.height) + kCourse;
       ++row) {
    const float y0 = static_cast<float>(row) * kCourse + kCourse - 190.0F - 62.0F;
    const float aside = kWave * Unit(HashAt(row, 1, seed)) * 0.22F;
    for (int i = 0; static_cast<float>(i) * kWave < static_cast<float>(sheet.width) + kWave; ++i) {
      const std::uint32_t h = HashAt(i, row, seed + 4);
      if (((i + row) & 1) != 0 || Unit(h) < 0.18F) continue;
      const float x = static_cast<float>(i) * kWave - aside + 12.0F * (Unit(Hash(h + 1)) - 0.5F);
      const float y = y0 + 40.0F * (Unit(Hash(h + 2)) - 0.5F);
      const StrokePoint head[] = {{x, y, 9.5F, 1.0F}};
      heads.Add(head);
      const float age = Unit(Hash(h + 3));
      const StrokePoint source[] = {{x, y, 6.0F + 7.0F * age, 0.25F + 0.5F * age}};
      sources.Add(source);
    }
  }
  Field head(sheet);
  heads.Draw(sheet, head, {.profile = StrokeProfile::kRound});
  Field source(sheet);
  sources.Draw(sheet, source, {.ragged = 6.0F, .raggedPeriod = 8.0F, .seed = seed + 5});
  const Fbm bloom{16.0F, 4, 0.7F, seed + 10};
  Repaint(sheet, source, [&](Spot p) {
    const float under =
        SmoothRamp(18.0F, 0.0F, wall(p).below) * Clamp01(2.4F * bloom(p.fx, p.fy * 0.3F));
    return Max(source(p), 0.9F * under);
  });
  const Fbm sway{130.0F, 3, 0.5F, seed + 11};
  const Fbm dry{100.0F, 3, 0.5F, seed + 12};
  const Field runs = RunDown(
      source, [&](Spot p) { return 0.9945F - 0.0045F * dry(p.fx, p.fy * 0.4F); },
      [&](Spot p) { return 0.3F * sway(p.fx, p.fy * 0.6F); });

  const Fbm old{300.0F, 6, 0.6F, seed + 20};
  const Fbm grain{5.0F, 3, 0.75F, seed + 21};
  const Fbm crust{24.0F, 4, 0.66F, seed + 22};
  const Field rust = Painted(sheet, [&](Spot p) {
    const Course& at = wall(p);
    const float low = SmoothRamp(kCourse - 260.0F, kCourse, at.below);
    const float own = 0.9F * (Unit(at.hash) - 0.62F);
    return old(p.fx * 1.3F, p.fy * 0.55F) + 0.24F * crust(p) + 0.12F * grain(p) + 0.16F * at.wave +
           0.55F * low + own + 0.45F * runs(p) - 0.06F;
  });
  const Field relief = Painted(sheet, [&](Spot p) {
    const Course& at = wall(p);
    const float scab = SoftThreshold(rust(p), 0.30F, 0.16F);
    return 13.5F * at.wave + 5.0F * Ramp(0.0F, 4.0F, at.below) * -1.0F + 5.0F * head(p) +
           scab * (0.6F + 0.7F * crust(p) + 0.5F * grain(p)) + 5.0F * dents(p);
  });
  const Field light = Relief(sheet, relief, 0.62F);
  Field tone = Painted(sheet, [&](Spot p) {
    const Course& at = wall(p);
    const float young = SoftThreshold(rust(p), 0.02F, 0.34F);
    const float scab = SoftThreshold(rust(p), 0.32F, 0.18F);
    float value = 0.74F + 0.10F * old(p.fx + 900.0F, p.fy * 0.5F) + 0.05F * crust(p) +
                  0.03F * grain(p) + 0.08F * (Unit(Hash(at.hash)) - 0.5F);
    value = Mix(value, 0.44F + 0.12F * crust(p) + 0.06F * grain(p), 0.85F * young);
    value = Mix(value, 0.20F + 0.10F * crust(p) + 0.06F * grain(p), scab);
    value *= 1.0F - 0.52F * runs(p);
    value += 0.30F * light(p) + 0.07F * at.wave;
    value *= 1.0F - 0.75F * SmoothRamp(20.0F, 0.0F, at.below);
    return Mix(value, 0.30F + 0.35F * light(p), 0.8F * Min(1.0F, 1.4F * head(p)));
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.004F, 0.996F);
  return tone;
}

const RegisteredTexture kCorrugatedIron(TextureRecipe{
    .name = "Corrugated_Iron",
    .set = TextureSet::kForge,
    .effects = {"Metals", "Industrial", "Weathered/Aged", "Erosion (Medium)"},
    .seed = 3015,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
