// Rain_Fluted_Stone: a limestone outcrop that rain has run down since the ice
// left. Flutes with sharp crests between them start under the top, join, and
// widen downwards; old cracks cross them.
//
// What makes it read as that: hollows round and crests sharp, never the other
// way; flutes meet downwards like streams; the stone itself white and fine.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/cracks.h"
#include "toolbox/filters.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Cells wide{104.0F, 0.95F, seed};
  const Cells narrow{43.0F, 1.0F, seed + 1};
  const Warp sway{34.0F, {300.0F, 3, 0.5F, seed + 5}};
  const Fbm worn{430.0F, 4, 0.52F, seed + 10};
  const Fbm rough{30.0F, 4, 0.60F, seed + 14};
  const Fbm grain{3.6F, 3, 0.72F, seed + 18};
  const Fbm stain{130.0F, 6, 0.6F, seed + 22};
  const Fbm lichen{90.0F, 5, 0.62F, seed + 28};
  StrokeSet lines;
  AddCracks(lines, sheet,
            {.starts = 6,
             .length = 760.0F,
             .radius = 2.0F,
             .jerk = 0.36F,
             .pull = 0.12F,
             .branchEvery = 190.0F,
             .branchShare = 0.55F,
             .generations = 3},
            seed + 40);
  Field crack(sheet);
  lines.Draw(sheet, crack, {.ragged = 1.2F, .raggedPeriod = 5.0F, .seed = seed + 41});

  const Field soft = Painted(sheet, [&](Spot p) { return worn(p); });
  const Field dent = Painted(sheet, [&](Spot p) { return rough(p); });
  // 1 on a crest, down to 0 along the middle of a flute. Flutes are cells drawn
  // out downwards: between two of them is a crest, and they end in points.
  const Field flute = Painted(sheet, [&](Spot p) {
    const Spot q = sway(p);
    const float x = q.fx + 3.0F * dent(p);
    const CellSample a = wide.WithEdge(x, q.fy * 0.13F);
    const CellSample b = narrow.WithEdge(x, q.fy * 0.10F);
    const float crestA = Square(1.0F - Clamp01(2.2F * a.edge));
    const float crestB = Square(1.0F - Clamp01(2.2F * b.edge));
    return crestA + 0.34F * crestB * SmoothRamp(-0.2F, 0.3F, soft(p)) * (1.0F - 0.6F * crestA);
  });
  const Field height = Painted(sheet, [&](Spot p) {
    return 30.0F * (0.8F + 0.5F * soft(p)) * flute(p) + 2.4F * dent(p) + 0.40F * grain(p) -
           5.0F * crack(p);
  });
  const Field light = Relief(sheet, height, 0.95F);
  Field tone = Painted(sheet, [&](Spot p) {
    const float hollow = Clamp01(1.0F - flute(p));
    float value = 0.78F + 0.08F * soft(p) + 0.05F * dent(p) + 0.05F * grain(p);
    const float run = SmoothRamp(0.0F, 0.5F, stain(p.fx * 1.2F, p.fy * 0.14F) + 0.25F * hollow);
    value -= 0.17F * run * hollow;
    value -= 0.20F * SoftThreshold(lichen(p) + 0.12F * grain(p), 0.42F, 0.12F) * (0.7F + dent(p));
    value += 0.34F * light(p);
    return value * (1.0F - 0.75F * crack(p));
  });
  Soften(sheet, tone, 0.4F);
  StretchTo(sheet, tone, 0.002F, 0.997F);
  return tone;
}

const RegisteredTexture kRainFlutedStone(TextureRecipe{
    .name = "Rain_Fluted_Stone",
    .set = TextureSet::kQuarry,
    .effects = {"Stone/Minerals", "Erosion (Light)", "Texture (Medium)"},
    .seed = 2270,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
