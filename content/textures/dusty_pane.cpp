// Dusty_Pane: the window of a shed on which rain fell after a dry summer. Each
// drop gathered the dust about it and dried with a dirty rim; some ran and
// washed a lane down to the sill, where the mud lies; somebody wiped a hole to
// look through.
//
// What makes it read as that: small rings by the thousand, pale inside, lanes
// with dark banks, a wiped arc with streaks, dust thick in the corners.
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"
#include "toolbox/turn.h"

namespace tarnwick::content {
namespace {

void AddLanes(StrokeSet& lanes, const Sheet& sheet, std::uint32_t seed) {
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  const int count = FloorInt(width / 52.0F);
  for (int i = 0; i < count; ++i) {
    Dice dice(seed, i);
    float x = dice.Unit() * width;
    float y = dice.Between(-0.2F, 0.85F) * height;
    const float length = 60.0F + 900.0F * Square(dice.Unit());
    const float radius = dice.Between(3.0F, 8.0F);
    const float strength = dice.Between(0.5F, 1.0F);
    float drift = 0.0F;
    std::vector<StrokePoint> points;
    for (float along = 0.0F; along < length; along += 10.0F) {
      const float left = 1.0F - along / length;
      points.push_back({x, y, radius * (0.6F + 0.4F * left), strength * (0.5F + 0.5F * left)});
      if (dice.Chance(0.12F)) drift = dice.Around(0.0F, 3.4F);
      drift *= 0.85F;
      x += drift;
      y += 10.0F;
    }
    lanes.Add(points);
  }
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  StrokeSet strokes;
  AddLanes(strokes, sheet, seed + 1);
  Field lane(sheet);
  strokes.Draw(sheet, lane, {.ragged = 1.6F, .raggedPeriod = 14.0F, .seed = seed + 2});
  Field bank = lane;
  Blur(sheet, bank, 3.2F);

  const Warp odd{3.0F, {13.0F, 3, 0.6F, seed + 10}};
  const Spots fine{15.0F, 0.6F, 1.6F, 6.8F, seed + 11};
  const Spots broad{54.0F, 0.7F, 4.0F, 21.0F, seed + 12};
  // -1..1: below 0 washed, above 0 the dirt that a drop left behind.
  const Field drop = Painted(sheet, [&](Spot p) {
    const Spot q = odd(p);
    float left = 0.0F;
    const auto add = [&](const Spots::Hit& hit, float chance) {
      if (hit.depth <= 0.0F || Unit(hit.hash) > chance) return;
      const float edge = hit.depth * hit.radius;  // pixels from the rim
      // More dirt sinks to a drop's lower edge.
      const float low = 0.55F + 0.45F * hit.dy;
      const float rim = SmoothRamp(0.0F, 1.1F, edge) * SmoothRamp(3.8F, 1.4F, edge) * low;
      const float inner = SmoothRamp(1.8F, 4.5F, edge);
      left += 1.1F * rim - 0.65F * inner;
    };
    add(fine(q), 1.0F);
    add(broad(q), 0.55F);
    return left;
  });
  // The arc that a sleeve wiped.
  const Fbm streak{9.0F, 3, 0.66F, seed + 20};
  const Fbm torn{60.0F, 4, 0.6F, seed + 21};
  const Field wiped = Painted(sheet, [&](Spot p) {
    const float dx = p.fx - 0.70F * width;
    const float dy = p.fy - 0.92F * height;
    const float far = Length(dx, dy) + 5.0F * torn(p);
    const float turn = Turn(dx, dy);  // -0.5..0 above
    const float band = SmoothRamp(96.0F, 66.0F, Abs(far - 0.28F * height));
    const float ends = SmoothRamp(-0.405F, -0.37F, turn + 0.02F * torn(p)) *
                       SmoothRamp(-0.115F, -0.15F, turn + 0.03F * torn(p));
    return band * ends * Clamp01(0.86F + 0.9F * streak(far, turn * 40.0F));
  });
  const Fbm dust{260.0F, 6, 0.60F, seed + 30};
  const Fbm grain{3.0F, 2, 0.75F, seed + 31};
  const Fbm clump{17.0F, 4, 0.66F, seed + 32};
  Field tone = Painted(sheet, [&](Spot p) {
    const float side = Min(Min(p.fx, width - p.fx) / width, 0.75F * p.fy / height);
    const float sill = SmoothRamp(0.80F, 1.02F, p.fy / height + 0.05F * dust(p.fx, 40.0F));
    const float thick =
        0.30F + 0.24F * dust(p) + 0.35F * Exp(-side * 14.0F) + 0.50F * sill + 0.07F * clump(p);
    float dirt = thick * (1.0F + 0.30F * grain(p));
    dirt *= 1.0F + 0.85F * drop(p);
    dirt += 0.30F * Max(0.0F, drop(p)) * (0.5F + thick);
    // Water cleans the lane and leaves its load on the banks.
    const float clear = SmoothRamp(0.1F, 0.8F, lane(p));
    dirt += 0.55F * bank(p) * (1.0F - clear);
    dirt *= 1.0F - 0.86F * clear;
    dirt *= 1.0F - 0.80F * wiped(p);
    return 1.0F - 0.80F * Max(0.0F, dirt - 0.06F);
  });
  Soften(sheet, tone, 0.25F);
  StretchTo(sheet, tone, 0.004F, 0.93F);
  return tone;
}

const RegisteredTexture kDustyPane(TextureRecipe{
    .name = "Dusty_Pane",
    .set = TextureSet::kWeatherStation,
    .effects = {"Weathered/Aged", "Ephemeral", "Erosion (Light)", "Distress (Light)"},
    .seed = 3036,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
