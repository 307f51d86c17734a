// Pine_Bark: the bark of an old pine, seen from near. Plates as long as a hand
// stand between furrows; each plate is a pack of thin scales, broken off in
// steps, so that their rims run about it like lines on a map.
//
// What makes it read as that: furrows that are black and run up the trunk,
// plates with steps that look away from the middle, scales of different age
// and tone, grit in all hollows.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Warp leaning{90.0F, {480.0F, 2, 0.5F, seed + 1}};
  const Warp crooked{30.0F, {90.0F, 3, 0.5F, seed + 2}};
  const Cells plates{178.0F, 1.0F, seed + 3};
  const Fbm lumps{120.0F, 4, 0.55F, seed + 4};
  const Fbm nibble{17.0F, 3, 0.6F, seed + 5};
  // The pack before scales broke off: highest in the middle of plates.
  struct Bark {
    float pack, furrow;
  };
  const Survey<Bark> bark(sheet, [&](Spot p) {
    const Spot q = crooked(leaning(p));
    const CellSample cell = plates.WithEdge(q.fx, q.fy * 0.36F);
    const float edge = cell.edge * plates.period;
    const float pack = Sqrt(Min(edge, 90.0F) / 90.0F) * (0.75F + 0.5F * cell.id) +
                       0.42F * lumps(q.fx, q.fy * 0.7F) + 0.045F * nibble(p);
    // Furrows run up the trunk; across it plates only part.
    const float upright = Abs(cell.dx) / (Abs(cell.dx) + Abs(cell.dy) + 0.01F);
    const float width =
        (3.0F + 17.0F * upright) * (0.7F + 0.5F * lumps(p) + 0.4F * Unit(cell.hash));
    return Bark{pack, SmoothRamp(width + 1.0F, 0.55F * width, edge + 1.5F * nibble(p))};
  });
  const Fbm grit{4.5F, 3, 0.7F, seed + 10};
  const Fbm skin{26.0F, 4, 0.6F, seed + 11};
  constexpr float kScale = 0.17F;  // of the pack, from step to step
  struct Scale {
    float level, rise;
    std::uint32_t hash;
  };
  const auto scale = [&](float pack) {
    const float level = pack / kScale;
    const int floor = FloorInt(level);
    const float t = level - static_cast<float>(floor);
    return Scale{static_cast<float>(floor), SmoothRamp(0.0F, 0.16F, t),
                 HashAt(floor, 3, seed + 12)};
  };
  const Field height = Painted(sheet, [&](Spot p) {
    const Bark& at = bark(p);
    const Scale s = scale(at.pack);
    return 0.75F * (s.level + s.rise) + 0.35F * skin(p) + 0.20F * grit(p) + 1.5F * at.pack -
           5.0F * at.furrow;
  });
  const Field light = Relief(sheet, height, 0.42F);
  Field hollow = height;
  Blur(sheet, hollow, 7.0F);
  const Fbm weather{420.0F, 4, 0.55F, seed + 20};
  Field tone = Painted(sheet, [&](Spot p) {
    const Bark& at = bark(p);
    const Scale s = scale(at.pack);
    const float own = Unit(s.hash);
    float value = 0.50F + 0.42F * (own - 0.5F) + 0.16F * Clamp(at.pack - 0.7F, -0.6F, 0.6F) +
                  0.10F * skin(p) + 0.07F * grit(p) + 0.14F * weather(p);
    value += 0.11F * Clamp(height(p) - hollow(p), -2.0F, 1.2F) + 0.25F * light(p);
    return value * (1.0F - 0.88F * at.furrow * (1.0F - 0.25F * skin(p)));
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.004F, 0.996F);
  return tone;
}

const RegisteredTexture kPineBark(TextureRecipe{
    .name = "Pine_Bark",
    .set = TextureSet::kTimberYard,
    .effects = {"Woods", "Texture (Heavy)", "Erosion (Heavy)"},
    .seed = 3004,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
