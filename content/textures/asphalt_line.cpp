// Asphalt_Line: a country road, seen straight down. Chippings stand in black
// tar; a white line was rolled over them and wore off the tops; cracks were
// filled with a snake of fresh tar, others are still open.
//
// What makes it read as that: stones of many greys packed close, paint that
// stays in the hollows between them, tar that is smooth and blacker than all.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/cracks.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  StrokeSet snake;
  for (int i = 0; i < 3; ++i) {
    Dice dice(seed + 1, i);
    const float y = (0.18F + 0.36F * static_cast<float>(i) + dice.Around(0.0F, 0.08F)) * height;
    AddWalk(snake, {.x = -40.0F,
                    .y = y,
                    .length = 1.2F * width,
                    .heading = dice.Around(0.0F, 0.30F),
                    .wobble = 0.55F,
                    .wobblePeriod = 90.0F,
                    .radius = dice.Between(15.0F, 22.0F),
                    .taper = 0.02F,
                    .seed = dice.Word()});
  }
  Field tar(sheet);
  snake.Draw(sheet, tar, {.ragged = 7.0F, .raggedPeriod = 34.0F, .seed = seed + 2});
  StrokeSet open;
  AddCracks(open, sheet,
            {.starts = 5,
             .length = 800.0F,
             .radius = 3.4F,
             .jerk = 0.6F,
             .branchEvery = 130.0F,
             .generations = 3,
             .step = 9.0F},
            seed + 3);
  Field crack(sheet);
  open.Draw(sheet, crack, {.ragged = 3.0F, .raggedPeriod = 8.0F, .seed = seed + 4});

  const Warp odd{3.2F, {12.0F, 3, 0.6F, seed + 10}};
  const Cells stones{21.0F, 1.0F, seed + 11};
  const Cells chippings{11.0F, 1.0F, seed + 12};
  const Fbm lay{150.0F, 4, 0.55F, seed + 13};
  struct Stone {
    float dome, own;
  };
  const Survey<Stone> road(sheet, [&](Spot p) {
    const Spot q = odd(p);
    const CellSample a = stones(q.fx, q.fy);
    const float gapA = (a.f2 - a.f1) * stones.period;
    // Every third place holds a large stone, the rest small ones.
    if (Unit(a.hash) < 0.45F + 0.5F * lay(p)) {
      const float dome = SmoothRamp(0.8F, 6.5F, gapA);
      if (dome > 0.0F) return Stone{dome * (0.75F + 0.25F * a.id), Unit(Hash(a.hash + 1))};
    }
    const CellSample b = chippings(q.fx, q.fy);
    return Stone{0.72F * SmoothRamp(0.6F, 4.2F, (b.f2 - b.f1) * chippings.period) *
                     (Unit(b.hash) < 0.7F ? 1.0F : 0.2F),
                 Unit(Hash(b.hash + 1))};
  });
  const Fbm grit{2.8F, 2, 0.75F, seed + 20};
  const Fbm patch{300.0F, 5, 0.58F, seed + 21};
  const Fbm wear{200.0F, 5, 0.60F, seed + 22};
  const auto smooth = [&](Spot p) { return SmoothRamp(0.2F, 0.7F, tar(p)); };
  const Field relief = Painted(sheet, [&](Spot p) {
    const float even = smooth(p);
    return Mix(4.2F * road(p).dome, 3.4F + 0.8F * wear(p), 0.93F * even) +
           0.35F * grit(p) * (1.0F - 0.7F * even) - 6.0F * crack(p) * (1.0F - even);
  });
  const Field light = Relief(sheet, relief, 0.55F);
  Field tone = Painted(sheet, [&](Spot p) {
    const Stone& stone = road(p);
    const float even = smooth(p);
    float value = 0.13F + (0.26F + 0.26F * Square(stone.own)) * stone.dome + 0.09F * patch(p) +
                  0.05F * grit(p);
    // The line: two rails of paint, thick once.
    const float across = 0.966F * (p.fx - 0.33F * width) - 0.259F * (p.fy - 0.5F * height);
    const float side = 92.0F - Abs(across + 2.5F * wear(p));
    const float hold = 0.50F + 0.9F * wear(p.fx * 0.8F, p.fy) - 0.30F * (stone.dome - 0.5F) +
                       0.14F * grit(p) - 0.5F * crack(p);
    const float paint = SmoothRamp(-2.0F, 3.0F, side) * SoftThreshold(hold, 0.26F, 0.30F);
    value = Mix(value, 0.88F + 0.06F * grit(p) + 0.10F * patch(p), paint);
    value = Mix(value, 0.085F + 0.03F * wear(p), 0.92F * even);
    value += (0.30F - 0.10F * paint) * light(p);
    return value * (1.0F - 0.85F * Min(1.0F, crack(p)) * (1.0F - even));
  });
  Soften(sheet, tone, 0.40F);
  StretchTo(sheet, tone, 0.003F, 0.996F);
  return tone;
}

const RegisteredTexture kAsphaltLine(TextureRecipe{
    .name = "Asphalt_Line",
    .set = TextureSet::kWallsAndSigns,
    .effects = {"Industrial", "Stone/Minerals", "Texture (Heavy)", "Erosion (Light)"},
    .seed = 3044,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
