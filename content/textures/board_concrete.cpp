// Board_Concrete: a bunker wall cast against rough boards. The grain of every
// board stands in it, a fin where two met, pits where air was caught, plugged
// holes of the ties with a run of rust, and water stains from above.
//
// What makes it read as that: a relief of wood in a material that is not wood,
// neighbouring boards a touch higher or lower, pits gathered under the joints.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/planks.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  // Boards stood upright: the plank's length runs down the picture.
  const Planks planks{.breadth = 214.0F, .uneven = 0.30F, .length = 2600.0F, .seed = seed};
  const Survey<Planks::Place> boards(
      sheet, [&](Spot p) { return planks.At(p.fy + 300.0F, p.fx + 90.0F); });
  const Fbm bend{430.0F, 3, 0.5F, seed + 10};
  const Fbm bands{22.0F, 3, 0.6F, seed + 14};
  const Fbm fibre{3.4F, 3, 0.7F, seed + 18};
  const Fbm cement{90.0F, 6, 0.64F, seed + 22};
  const Fbm fine{2.6F, 2, 0.7F, seed + 28};
  const Fbm water{150.0F, 6, 0.6F, seed + 32};
  const Fbm damp{520.0F, 4, 0.55F, seed + 38};
  const Fbm nibble{12.0F, 3, 0.6F, seed + 42};
  const Spots bubbles{30.0F, 0.40F, 1.0F, 7.5F, seed + 46};
  const Spots honey{15.0F, 0.85F, 4.0F, 7.4F, seed + 48};

  const Field grain = Painted(sheet, [&](Spot p) {
    const Planks::Place& at = boards(p);
    const float along = p.fy + Unit(at.plank) * 9000.0F;
    const float across = p.fx + 26.0F * bend(along * 0.30F, p.fx);
    return 0.55F * bands(along * 0.03F, across) + 0.75F * fibre(along * 0.02F, across);
  });
  const Field rough = Painted(sheet, [&](Spot p) { return nibble(p); });
  const Field clouds = Painted(sheet, [&](Spot p) { return cement(p); });
  // Where the mix was too dry: gravel without paste, under a joint.
  const Field nest = Painted(sheet, [&](Spot p) {
    return SmoothRamp(
        0.58F, 0.76F,
        clouds(p) + 0.5F * damp(p.fx + 2000.0F, p.fy) + 0.30F * Exp(-boards(p).toGap / 30.0F));
  });
  const Field pit = Painted(sheet, [&](Spot p) {
    const Spot q{p.x, p.y, p.fx + 2.0F * rough(p), p.fy + 2.0F * rough(p)};
    const float bubble =
        SmoothRamp(0.0F, 0.5F, bubbles(q).depth) *
        SmoothRamp(-0.15F, 0.25F,
                   damp(p.fx * 1.4F, p.fy * 1.4F) + 0.2F * Exp(-boards(p).toGap / 40.0F));
    return Max(bubble, nest(p) * SmoothRamp(0.45F, 0.0F, honey(q).depth));
  });
  const auto fin = [&](Spot p) {
    return SmoothRamp(4.5F, 1.0F, boards(p).toGap + 1.5F * rough(p));
  };

  // Ties in two rows, as the formwork had them.
  const float width = static_cast<float>(sheet.width);
  const float tall = static_cast<float>(sheet.height);
  const auto tie = [&](Spot p) {
    struct {
      float distance = 1e9F, aside = 0.0F, below = 0.0F, age = 0.0F;
    } best;
    for (int i = 0; i < 6; ++i) {
      const std::uint32_t h = HashAt(i, 5, seed);
      const float x =
          width * (0.14F + 0.36F * static_cast<float>(i % 3)) + 30.0F * (Unit(h) - 0.5F);
      const float y = tall * (i < 3 ? 0.21F : 0.73F) + 24.0F * (Unit(Hash(h + 1)) - 0.5F);
      const float d = Length(p.fx - x, p.fy - y);
      const float below = p.fy - y;
      const bool trails = below > 0.0F && Abs(p.fx - x) < 40.0F && below < 420.0F;
      if (d < best.distance && (d < 60.0F || trails))
        best = {d, p.fx - x, below, Unit(Hash(h + 2))};
    }
    return best;
  };
  constexpr float kHole = 21.0F;
  const Field height = Painted(sheet, [&](Spot p) {
    const Planks::Place& at = boards(p);
    const float step = 3.2F * Unit(Hash(at.plank + 2));
    const float lip = Exp(-at.toEnd / 3.0F);
    const float hole = SmoothRamp(kHole + 1.5F, kHole - 1.5F, tie(p).distance + rough(p));
    return step + 1.7F * grain(p) * (1.0F - nest(p)) + 2.2F * fin(p) + 1.5F * lip +
           0.5F * clouds(p) + 0.18F * fine(p) - 3.0F * pit(p) - 4.0F * hole;
  });
  const Field light = Relief(sheet, height, 0.38F);
  Field tone = Painted(sheet, [&](Spot p) {
    const Planks::Place& at = boards(p);
    float value = 0.62F + 0.12F * (Unit(Hash(at.plank + 1)) - 0.5F) + 0.15F * clouds(p) +
                  0.07F * grain(p) + 0.03F * fine(p);
    const float run = SmoothRamp(
        -0.02F, 0.55F,
        water(p.fx * 1.5F, p.fy * 0.10F) + 0.45F * damp(p) + 0.22F - 0.42F * p.fy / tall);
    value *= 1.0F - 0.36F * run * (0.8F + 0.5F * clouds(p));
    // Lime washed out of the joints.
    value = Mix(value, 0.88F,
                0.35F * SmoothRamp(26.0F, 2.0F, at.toGap) *
                    SmoothRamp(0.0F, 0.4F, damp(p.fx, p.fy + 5000.0F)));
    const auto near = tie(p);
    const float rust = SmoothRamp(11.0F + 7.0F * near.age, 0.0F,
                                  Abs(near.aside + 5.0F * clouds(p) + 2.0F * rough(p))) *
                       SmoothRamp(60.0F + 330.0F * near.age, 10.0F, near.below) *
                       (near.below > 0.0F ? 1.0F : 0.0F);
    value *= 1.0F - 0.40F * rust;
    const float hole = SmoothRamp(kHole + 1.2F, kHole - 1.2F, near.distance + rough(p));
    value = Mix(value,
                0.42F + 0.10F * clouds(p) -
                    0.25F * SmoothRamp(6.0F, -14.0F, near.below + 0.6F * near.aside),
                hole);
    value += 0.33F * light(p);
    return value * (1.0F - 0.55F * pit(p));
  });
  Soften(sheet, tone, 0.4F);
  StretchTo(sheet, tone, 0.002F, 0.997F);
  return tone;
}

const RegisteredTexture kBoardConcrete(TextureRecipe{
    .name = "Board_Concrete",
    .set = TextureSet::kWallsAndSigns,
    .effects = {"Industrial", "Texture (Medium)", "Erosion (Light)"},
    .seed = 2130,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
