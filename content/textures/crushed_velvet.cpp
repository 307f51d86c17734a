// Crushed_Velvet: a theatre curtain's velvet that was sat on, brushed against and
// never steamed.
//
// What makes it read as that: pile that leans in patches, each of one way, so
// that a patch is light as a whole and its neighbour dark; soft borders on one
// side and a bright crest on the other; the fine grain of pile throughout.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

// How the pile lies at a place.
struct Lie {
  float tone;          // light it throws back, 0..1, one for each patch
  float crest;         // 0..1 where it stands up along the side it leans to
  float hard;          // 0..1 on that side of its patch: the border there is sharp
  float leanX, leanY;  // the way it leans, a unit vector
};

// A patch leans one way from border to border.
struct Patches {
  Cells cells;

  [[nodiscard]] Lie At(float x, float y) const {
    const CellSample cell = cells.WithEdge(x, y * 0.8F);
    const float heading = kTau * Unit(Hash(cell.hash + 1));
    const float leanX = Cos(heading);
    const float leanY = Sin(heading);
    const float out = Length(cell.dx, cell.dy) + 1e-3F;
    const float facing = -(cell.dx * leanX + cell.dy * leanY) / out;
    const float hard = SmoothRamp(0.0F, 0.6F, facing) * SmoothRamp(0.34F, 0.16F, cell.edge);
    const float near = cell.edge * cells.period;
    const float crest =
        SmoothRamp(-0.1F, 0.7F, facing) * SmoothRamp(0.05F + 0.10F * cells.period, 1.0F, near);
    // Light from above left: pile that leans away from it shows its sides.
    const float away = 0.6F * leanX + 0.8F * leanY;
    const float luck = Unit(Hash(cell.hash + 2)) - 0.5F;
    // Towards the side it leans to a patch rolls over a little.
    const float roll = Clamp(out * facing, -0.6F, 0.6F);
    return {0.5F + 0.34F * away + 0.34F * luck + 0.14F * roll, crest, hard, leanX, leanY};
  }
};

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Warp crush{110.0F, {300.0F, 3, 0.5F, seed + 1}};
  const Warp frayed{6.0F, {14.0F, 2, 0.6F, seed + 2}};
  const Patches broad{{250.0F, 1.0F, seed + 3}};
  const Patches small{{96.0F, 1.0F, seed + 4}};
  const Fbm busy{360.0F, 3, 0.5F, seed + 5};
  const Survey<Lie> lies(sheet, [&](Spot p) {
    const Spot q = frayed(crush(p));
    Lie lie = broad.At(q.fx * 0.94F + q.fy * 0.34F, q.fy * 0.94F - q.fx * 0.34F);
    const Lie less = small.At(q.fx * 0.77F - q.fy * 0.64F, q.fy * 0.77F + q.fx * 0.64F);
    // Where it was crushed most, small patches break up the broad ones.
    const float share = 0.12F + 0.55F * SmoothRamp(-0.05F, 0.35F, busy(p));
    lie.tone = Mix(lie.tone, less.tone, share);
    lie.crest = Max(lie.crest * (1.0F - 0.5F * share), 0.9F * share * less.crest);
    lie.hard = Max(lie.hard, share * less.hard);
    if (share > 0.4F) {
      lie.leanX = less.leanX;
      lie.leanY = less.leanY;
    }
    return lie;
  });
  const Field patch = Painted(sheet, [&](Spot p) { return lies(p).tone; });
  Field soft = patch;
  Blur(sheet, soft, 20.0F);
  // Pile shows as short strokes that point the way it leans.
  const Fbm pile{3.6F, 2, 0.6F, seed + 6};
  const Fbm tuft{15.0F, 3, 0.6F, seed + 7};
  const Fbm deep{520.0F, 3, 0.5F, seed + 8};
  Field tone = Painted(sheet, [&](Spot p) {
    const Lie& lie = lies(p);
    const float along = p.fx * lie.leanX + p.fy * lie.leanY;
    const float across = p.fy * lie.leanX - p.fx * lie.leanY;
    const float stroke = pile(along * 0.24F, across);
    const float clump = tuft(along * 0.35F, across);
    const float flat = Mix(soft(p), patch(p), lie.hard);
    const float shine = Clamp01(flat);
    float value = 0.04F + 0.72F * shine * (0.45F + 0.55F * shine) + 0.05F * deep(p);
    value += 0.30F * lie.crest * (0.6F + 0.4F * shine) * (1.0F + 0.8F * clump);
    return value + (0.07F + 0.13F * shine) * stroke + 0.10F * clump * (0.4F + shine);
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.004F, 0.997F);
  return tone;
}

const RegisteredTexture kCrushedVelvet(TextureRecipe{.name = "Crushed_Velvet",
                                                     .set = TextureSet::kHidesAndCloth,
                                                     .effects = {"Fabrics", "Texture (Medium)"},
                                                     .seed = 1009,
                                                     .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
