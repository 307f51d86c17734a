// Fiberglass: chopped strand mat under resin, as a boat or a bumper shows it
// where the gel coat has gone.
//
// What makes it read as that: bundles of straight filaments, all of one length,
// thrown in every direction and lying over one another; filaments fan out at
// the ends of a bundle; resin drowns some of them.
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

// One layer of the mat; the bundles of a later layer lie higher.
void AddBundles(StrokeSet& strokes, const Sheet& sheet, int layer, int count) {
  Dice dice(sheet.seed, layer);
  for (int i = 0; i < count; ++i) {
    const float x = dice.Between(-0.06F, 1.06F) * static_cast<float>(sheet.width);
    const float y = dice.Between(-0.06F, 1.06F) * static_cast<float>(sheet.height);
    const float heading = dice.Between(0.0F, kPi);
    const float length = dice.Between(230.0F, 330.0F);
    const float bend = dice.Around(0.0F, 0.06F);
    const int filaments = FloorInt(dice.Between(5.0F, 12.0F));
    for (int k = 0; k < filaments; ++k) {
      const float side = (static_cast<float>(k) - 0.5F * static_cast<float>(filaments - 1)) * 2.1F;
      const float sx = x - Cos(heading) * 0.5F * length - Sin(heading) * side;
      const float sy = y - Sin(heading) * 0.5F * length + Cos(heading) * side;
      const Walk walk{.length = length * dice.Between(0.9F, 1.05F),
                      .heading = heading + dice.Around(0.0F, 0.018F),
                      .bend = bend + dice.Around(0.0F, 0.02F),
                      .radius = dice.Between(0.8F, 1.3F),
                      .strength = dice.Between(0.45F, 1.0F),
                      .taper = 0.06F,
                      .skip = 0.3F,
                      .skipPeriod = 90.0F,
                      .step = 24.0F};
      AddWalk(strokes, sx, sy, walk, dice.Word());
    }
  }
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float area = static_cast<float>(sheet.width) * static_cast<float>(sheet.height);
  const int count = FloorInt(area / 9000.0F) + 1;
  constexpr int kLayers = 3;
  const Fbm resin{210.0F, 4, 0.5F, seed + 10};
  const Fbm haze{60.0F, 3, 0.5F, seed + 11};
  const Spots bubbles{46.0F, 0.3F, 1.0F, 5.0F, seed + 12};
  Field mat(sheet, 0.18F);
  for (int layer = 0; layer < kLayers; ++layer) {
    StrokeSet strokes;
    AddBundles(strokes, sheet, layer, count);
    Field threads(sheet);
    strokes.Draw(sheet, threads, {.profile = StrokeProfile::kRound});
    // Each layer hides what is below it in part, and resin hides the layer.
    Repaint(sheet, mat, [&](Spot p) {
      const float depth = static_cast<float>(layer + 1) / kLayers;
      const float seen = Clamp01(0.55F + 0.45F * depth - 0.6F * Max(0.0F, resin(p)));
      const float thread = threads(p);
      return Mix(mat(p) * (1.0F - 0.25F * SmoothRamp(0.0F, 0.2F, thread)), 0.30F + 0.70F * thread,
                 Min(1.0F, thread * 1.4F) * seen * 0.8F);
    });
  }
  Repaint(sheet, mat, [&](Spot p) {
    const Spots::Hit bubble = bubbles(p);
    const float ring =
        SmoothRamp(0.0F, 0.3F, bubble.depth) - 0.8F * SmoothRamp(0.3F, 0.7F, bubble.depth);
    return mat(p) + 0.05F * haze(p) + 0.06F * resin(p) + 0.22F * ring;
  });
  StretchTo(sheet, mat, 0.002F, 0.998F);
  return mat;
}

const RegisteredTexture kFiberglass(TextureRecipe{
    .name = "Fiberglass",
    .set = TextureSet::kEssentials,
    .effects = {"Industrial", "Texture (Medium)", "Fabrics"},
    .seed = 5309,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
