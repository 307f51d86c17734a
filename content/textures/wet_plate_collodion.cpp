// Wet_Plate_Collodion: the edge of a plate that was coated, dipped and developed by
// hand. The middle is clear; what surrounds it is where hands and chemicals
// showed.
//
// What makes it read as that: the coating stops short of the corners in thick
// round lips; it ran off over the lower right one in streaks that fan in from
// the other side; comets of dust trail along the flow; stains creep in from
// the holder in scalloped lines.
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/stains.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

// Dust in the coat: a hard head and a tail that points away from the corner
// over which the plate was drained.
Field Comets(const Sheet& sheet) {
  StrokeSet set;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  for (int i = 0; i < FloorInt(w * h / 17000.0F); ++i) {
    Dice dice(sheet.seed + 30, i);
    const float x = dice.Unit() * w;
    const float y = dice.Unit() * h;
    const float far = Length(1.1F * w - x, 1.15F * h - y);
    const float ux = (1.1F * w - x) / far;
    const float uy = (1.15F * h - y) / far;
    const float size = 0.7F + 3.0F * Square(Square(dice.Unit()));
    const float tail = size * dice.Between(5.0F, 34.0F);
    const float strength = dice.Between(0.35F, 1.0F);
    const StrokePoint points[] = {
        {x, y, size, strength},
        {x + ux * tail * 0.25F, y + uy * tail * 0.25F, size * 0.8F, 0.55F * strength},
        {x + ux * tail, y + uy * tail, size * 0.25F, 0.0F}};
    set.Add(points);
  }
  Field comet(sheet);
  set.Draw(sheet, comet, {.ragged = 0.8F, .raggedPeriod = 5.0F, .seed = sheet.seed});
  return comet;
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  const Field comet = Comets(sheet);
  const Fbm lip{300.0F, 4, 0.5F, seed + 1};
  const Fbm ooze{90.0F, 3, 0.5F, seed + 2};
  const auto inside = [&](Spot p) {
    const float left = p.fx - 26.0F;
    const float right = w - p.fx - 34.0F;
    const float top = p.fy - 18.0F;
    const float bottom = h - p.fy - 40.0F;
    // Bare corners: cut off in a curve, the upper right one deepest.
    const auto corner = [](float a, float b, float reach) {
      const float dx = Max(0.0F, reach - a);
      const float dy = Max(0.0F, reach - b);
      return dx > 0.0F && dy > 0.0F ? reach - Length(dx, dy) : Min(a, b);
    };
    float edge = Min(Min(left, right), Min(top, bottom));
    edge = Min(edge, corner(right, top, 330.0F));
    edge = Min(edge, corner(left, top, 130.0F));
    edge = Min(edge, corner(left, bottom, 210.0F));
    return edge - 26.0F * lip(p) - 9.0F * ooze(p);
  };
  const std::vector<Puddle> stains = {{0.20F * w, 1.03F * h, 280.0F, 0.34F, 2.2F, seed + 40},
                                      {0.50F * w, 1.08F * h, 310.0F, 0.30F, 2.6F, seed + 41},
                                      {-0.04F * w, 0.52F * h, 230.0F, 0.36F, 2.4F, seed + 42},
                                      {1.04F * w, 0.42F * h, 260.0F, 0.34F, 2.2F, seed + 43},
                                      {0.93F * w, 1.02F * h, 380.0F, 0.26F, 2.6F, seed + 44},
                                      {0.86F * w, -0.04F * h, 330.0F, 0.28F, 2.4F, seed + 45}};
  const Fbm fan{0.013F, 4, 0.58F, seed + 3};
  const Fbm cloud{330.0F, 5, 0.56F, seed + 4};
  const Fbm silver{5.0F, 3, 0.7F, seed + 5};
  const Fbm smear{60.0F, 4, 0.6F, seed + 6};
  Field tone = Painted(sheet, [&](Spot p) {
    const float in = inside(p) + 1.2F * silver(p);
    // Streaks of the drain: noise of the direction to the corner.
    const float dx = 1.25F * w - p.fx;
    const float dy = 1.30F * h - p.fy;
    const float far = Length(dx, dy);
    const float streak = fan(dx / far + 0.00001F * far, dy / far + 0.00001F * far);
    const float reach = SmoothRamp(1.25F * w, 0.35F * w, far);
    float light = 1.0F - 0.34F * reach * Clamp01(0.35F + 1.1F * streak + 0.4F * cloud(p));
    // Lips: the coat dried in steps along its rim.
    const float thick = Exp(-Max(0.0F, in) / 30.0F);
    const float steps = 0.5F + 0.5F * Cos(Sqrt(Max(0.0F, in)) * 2.3F + 2.0F * ooze(p));
    light *= 1.0F - thick * (0.25F + 0.50F * steps);
    light *= 1.0F - 0.40F * Exp(-Max(0.0F, in + 60.0F * cloud(p)) / 150.0F);
    for (const Puddle& stain : stains) {
      const float wet = stain.Inside(p.fx, p.fy);
      if (wet < -2.0F) continue;
      const float body = SmoothRamp(0.0F, 240.0F, wet);
      const float scallop =
          Exp(-Square((wet - 5.0F) / 4.5F)) + 0.5F * Exp(-Square((wet - 24.0F) / 7.0F));
      light *= 1.0F - SmoothRamp(-2.0F, 2.0F, wet) * (0.05F + 0.42F * body + 0.26F * scallop);
    }
    light *= 1.0F - 0.85F * comet(p);
    light *= 1.0F + 0.05F * silver(p) + 0.05F * cloud(p);
    // Bare plate: black, with the wipe of a cloth.
    const float bare = 0.05F + 0.035F * silver(p) +
                       0.10F * Clamp01(smear(p.fx * 0.25F + p.fy, p.fy * 0.2F - p.fx)) +
                       0.30F * Exp(-Square((in + 7.0F) / 5.0F)) * Clamp01(0.4F + ooze(p));
    return Mix(bare, light, SmoothRamp(-2.0F, 2.0F, in));
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.002F, 0.95F);
  return tone;
}

const RegisteredTexture kWetPlateCollodion(TextureRecipe{
    .name = "Wet_Plate_Collodion",
    .set = TextureSet::kDarkroom,
    .effects = {"Ephemeral", "Distress (Medium)", "Weathered/Aged"},
    .seed = 1030,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
