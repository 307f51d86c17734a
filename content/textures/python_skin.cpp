// Python_Skin: the tanned skin of a python, opened along the belly. Lozenge
// scales in slanting rows, larger towards the sides; dark saddles with a black
// rim and a pale eye down the back.
//
// What makes it read as that: the pattern is laid on scale by scale - each has
// one colour - every scale is a smooth lozenge with a free edge, and bare skin
// shows in the seams where it was stretched.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/grown_pattern.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

struct Scale {
  float inside = 0.0F;  // 0 at the seam to 1 in the middle
  float u = 0.0F, v = 0.0F;
  float x = 0.0F, y = 0.0F;  // its middle, before the skin was stretched
  std::uint32_t hash = 0;
};

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const Warp stretched{34.0F, {340.0F, 3, 0.5F, seed}};
  const GrownPattern saddles(sheet,
                             {.spacing = 400.0F, .bias = 0.25F, .rounds = 9, .seed = seed + 6});
  const Warp jagged{26.0F, {90.0F, 2, 0.5F, seed + 8}};
  const Fbm fine{3.0F, 2, 0.7F, seed + 12};
  const Fbm skin{14.0F, 4, 0.64F, seed + 16};
  const Fbm dull{420.0F, 4, 0.55F, seed + 22};

  constexpr float kWide = 46.0F, kTall = 62.0F;
  const auto scaleAt = [&](const Spot& p) {
    const Spot q = stretched(p);
    // Small along the back, in the picture's middle.
    const float aside = (q.fx - 0.5F * width) / (0.5F * width);
    const float x = 0.5F * width * aside * (1.34F - 0.34F * Abs(aside));
    const float a = x / kWide + q.fy / kTall;
    const float b = x / kWide - q.fy / kTall;
    const int ia = FloorInt(a);
    const int ib = FloorInt(b);
    Scale s;
    s.hash = HashAt(ia, ib, seed + 30);
    const float fa = a - static_cast<float>(ia);
    const float fb = b - static_cast<float>(ib);
    // Across and along the scale, -1..1, its tip at +1.
    s.u = fa + fb - 1.0F;
    s.v = fa - fb;
    s.x = 0.5F * width + 0.5F * static_cast<float>(ia + ib + 1) * kWide;
    s.y = 0.5F * static_cast<float>(ia - ib) * kTall;
    const float corner = 1.0F - Abs(s.u) - Abs(s.v);
    s.inside = corner - 0.55F * Max(0.0F, Abs(s.v) - 0.60F) - 0.5F * Max(0.0F, Abs(s.u) - 0.66F);
    return s;
  };
  const Survey<Scale> scales(sheet, scaleAt);
  const Field grit = Painted(sheet, [&](Spot p) { return fine(p); });
  const Field folds = Painted(sheet, [&](Spot p) { return skin(p); });
  const Field height = Painted(sheet, [&](Spot p) {
    const Scale& s = scales(p);
    // A flat dome that rises towards the free edge.
    const float dome = SmoothRamp(0.03F, 0.24F, s.inside);
    const float lift = 2.6F * s.v + (Unit(Hash(s.hash + 1)) - 0.5F) * 2.0F * s.u;
    return dome * (6.0F + lift) + 1.1F * folds(p) * (1.0F - 0.75F * dome) + 0.20F * grit(p);
  });
  const Field light = Relief(sheet, height, 0.85F);
  Field tone = Painted(sheet, [&](Spot p) {
    const Scale& s = scales(p);
    const Spot at = jagged(Spot{p.x, p.y, s.x, s.y});
    const float luck = Unit(Hash(s.hash + 2)) - 0.5F;
    const float mark = saddles.At(at.fx, at.fy * 1.1F) + 0.13F * luck;
    float value = 0.76F + 0.09F * luck;
    if (mark > -0.72F) value = 0.13F + 0.05F * luck;
    if (mark > 0.30F) value = 0.40F + 0.12F * luck;
    if (mark > 0.93F) value = 0.54F + 0.16F * luck;
    const float stray = Unit(Hash(s.hash + 3));
    if (stray < 0.035F) value = 0.18F;
    if (stray > 0.97F) value = 0.86F;
    // Each scale is darker at its root.
    value *= 0.90F + 0.13F * s.v;
    value += 0.03F * grit(p) + 0.04F * folds(p) + 0.06F * dull(p);
    const float seam = SmoothRamp(0.15F, 0.02F, s.inside);
    value = Mix(value, 0.30F + 0.10F * folds(p) + 0.10F * value, 0.85F * seam);
    value += 0.30F * light(p) * (1.0F - 0.35F * seam);
    return value + 0.10F * SmoothRamp(0.35F, 0.7F, light(p));
  });
  Soften(sheet, tone, 0.45F);
  StretchTo(sheet, tone, 0.003F, 0.996F);
  return tone;
}

const RegisteredTexture kPythonSkin(TextureRecipe{
    .name = "Python_Skin",
    .set = TextureSet::kHidesAndCloth,
    .effects = {"Animal Patterns", "Leather", "Texture (Medium)"},
    .seed = 2190,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
