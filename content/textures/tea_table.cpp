// Tea_Table: a sheet of paper that served as a table cloth. Rings of cups, a
// spill that dried with a hard border, splashes, and the damp edge of a puddle
// that crept in from a side. The paper itself is white: the picture stays.
//
// What makes it read as that: colour gathers at the border of every wet patch
// and is pale within; rings are broken and thicker on one side; overlaps are
// darker than their parts; drops fly away from one place.
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/stains.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

std::vector<CupRing> MakeRings(const Sheet& sheet) {
  // Places by eye, as shares of the sheet: cups are put down near each other.
  const struct {
    float x, y, radius, breadth, wet;
  } kCups[] = {{0.22F, 0.30F, 205.0F, 11.0F, 0.80F}, {0.31F, 0.37F, 208.0F, 7.0F, 0.50F},
               {0.71F, 0.24F, 170.0F, 8.0F, 0.62F},  {0.62F, 0.72F, 212.0F, 13.0F, 0.85F},
               {0.68F, 0.66F, 206.0F, 6.0F, 0.45F},  {0.94F, 0.55F, 168.0F, 9.0F, 0.60F},
               {0.08F, 0.86F, 172.0F, 8.0F, 0.55F}};
  std::vector<CupRing> rings;
  std::uint32_t seed = sheet.seed;
  for (const auto& cup : kCups) {
    rings.push_back({cup.x * static_cast<float>(sheet.width),
                     cup.y * static_cast<float>(sheet.height), cup.radius, cup.breadth, cup.wet,
                     ++seed});
  }
  return rings;
}

struct Spill {
  Puddle puddle;
  TideMark mark;
};

std::vector<Spill> MakeSpills(const Sheet& sheet) {
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  const std::uint32_t seed = sheet.seed + 100;
  const TideMark strong{.rim = 2.6F, .fade = 50.0F, .body = 0.20F, .edge = 0.85F};
  const TideMark pale{.rim = 2.0F, .fade = 90.0F, .body = 0.12F, .edge = 0.45F};
  return {{{0.45F * w, 0.60F * h, 150.0F, 0.32F, 1.2F, seed}, strong},
          {{0.47F * w, 0.63F * h, 95.0F, 0.40F, 1.6F, seed + 11}, pale},
          {{1.02F * w, 0.02F * h, 420.0F, 0.30F, 1.3F, seed + 22}, pale},
          {{1.03F * w, -0.02F * h, 330.0F, 0.34F, 1.3F, seed + 33}, pale},
          {{-0.02F * w, 0.55F * h, 210.0F, 0.40F, 1.4F, seed + 44}, pale},
          {{0.86F * w, 0.93F * h, 120.0F, 0.34F, 1.1F, seed + 55}, strong},
          {{0.30F * w, 1.04F * h, 260.0F, 0.35F, 1.4F, seed + 66}, pale}};
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  const std::vector<CupRing> rings = MakeRings(sheet);
  const std::vector<Spill> spills = MakeSpills(sheet);

  StrokeSet splash;
  AddSplash(splash, 0.45F * w, 0.60F * h, 560.0F, 150, seed + 200);
  AddSplash(splash, 0.22F * w, 0.30F * h, 460.0F, 70, seed + 201);
  AddSplash(splash, 0.86F * w, 0.93F * h, 500.0F, 80, seed + 202);
  Field drop(sheet);
  splash.Draw(sheet, drop,
              {.profile = StrokeProfile::kRound, .ragged = 0.8F, .raggedPeriod = 6.0F});

  const Fbm cloud{190.0F, 5, 0.55F, seed + 10};
  const Fbm tooth{4.0F, 3, 0.7F, seed + 11};
  return Painted(sheet, [&](Spot p) {
    // Stains are glazes: each takes its share of the light that is left.
    float light = 1.0F;
    const float uneven = Clamp01(0.95F + 0.5F * cloud(p) + 0.12F * tooth(p));
    for (const CupRing& ring : rings) light *= 1.0F - 0.85F * ring.At(p.fx, p.fy) * uneven;
    for (const Spill& spill : spills) {
      light *= 1.0F - 0.80F * spill.mark(spill.puddle.Inside(p.fx, p.fy)) * uneven;
    }
    // A drop is darkest at its rim: the round cut is low there.
    const float in = drop(p);
    const float rim = SmoothRamp(0.0F, 0.30F, in) * (0.95F - 0.5F * SmoothRamp(0.35F, 0.9F, in));
    return light * (1.0F - rim * uneven);
  });
}

const RegisteredTexture kTeaTable(TextureRecipe{
    .name = "Tea_Table",
    .set = TextureSet::kPaperDrawer,
    .effects = {"Ephemeral", "Papers", "Distress (Light)"},
    .seed = 1660,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
