// Marbled_Endpaper: the paper that lines an old binding. Colours were dropped on a
// bath, drawn to and fro with a rake, combed fine, and taken off on a sheet.
//
// What makes it read as that: scales that hang in each other like feathers,
// thin where the teeth passed and round between them; stripes keep their
// breadth along a curve; one colour never mixes with another.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

// How far a comb drags what floats near its teeth, 0..1: all the way at a
// tooth, hardly between. `t` in teeth; they lie at whole numbers, set by hand.
float Comb(float t, std::uint32_t seed) {
  const int below = FloorInt(t);
  float drag = 0.0F;
  for (int tooth = below - 1; tooth <= below + 2; ++tooth) {
    const float at = static_cast<float>(tooth) + 0.25F * (Unit(HashAt(tooth, 0, seed)) - 0.5F);
    drag = Max(drag, Exp(-4.6F * Abs(t - at)));
  }
  return drag;
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Warp hand{22.0F, {460.0F, 3, 0.5F, seed + 1}};
  const Fbm pour{300.0F, 4, 0.5F, seed + 2};
  const Spots drops{74.0F, 0.16F, 9.0F, 30.0F, seed + 3};
  const Fbm pale{500.0F, 4, 0.5F, seed + 9};
  const Fbm mottle{46.0F, 4, 0.6F, seed + 10};
  const Fbm grain{3.0F, 3, 0.7F, seed + 11};
  const Fbm rub{140.0F, 5, 0.62F, seed + 12};
  constexpr float kColours[] = {0.06F, 0.90F, 0.32F, 0.97F, 0.55F, 0.14F, 0.74F, 0.42F};
  const Field pattern = Painted(sheet, [&](Spot p) {
    // Undone in the opposite order: the comb that was drawn down, the one that
    // was drawn up before it, then the stripes as they were raked.
    Spot q = hand(p);
    q.fy -= 230.0F * Comb(q.fx / 92.0F, seed + 6);
    q.fy += 90.0F * Comb(q.fx / 92.0F + 0.5F, seed + 7);
    const Spots::Hit drop = drops(q.fx * 1.5F, q.fy * 0.34F);
    if (drop.depth > 0.0F) return kColours[drop.hash & 7U];
    const float stripe = (q.fy + 150.0F * pour(q.fx * 0.5F, q.fy)) / 58.0F;
    const int index = FloorInt(stripe);
    // Two colours to a stripe, of unequal breadth.
    const std::uint32_t word = HashAt(index, 0, seed + 8);
    const float part = stripe - static_cast<float>(index);
    const bool second = part > 0.25F + 0.5F * Unit(word);
    return kColours[(second ? word >> 5 : word >> 11) & 7U];
  });
  Field soft = pattern;
  Soften(sheet, soft, 0.6F);
  Field around = pattern;
  Blur(sheet, around, 2.5F);
  Field tone = Painted(sheet, [&](Spot p) {
    const float colour = soft(p);
    // The size gathered along borders keeps a hair line of paper.
    const float border = Clamp01(4.0F * Abs(colour - around(p)) - 0.12F);
    const float laid = colour + 0.08F * mottle(p) + 0.05F * grain(p) + 0.05F * pale(p);
    const float worn = SoftThreshold(rub(p), 0.33F, 0.10F) * Clamp01(0.6F + 2.0F * grain(p));
    return Mix(Mix(laid, 0.90F, 0.14F * border), 0.88F, 0.34F * worn);
  });
  Soften(sheet, tone, 0.3F);
  StretchTo(sheet, tone, 0.004F, 0.99F);
  return tone;
}

const RegisteredTexture kMarbledEndpaper(TextureRecipe{.name = "Marbled_Endpaper",
                                                       .set = TextureSet::kPaperDrawer,
                                                       .effects = {"Papers", "Texture (Medium)"},
                                                       .seed = 1016,
                                                       .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
