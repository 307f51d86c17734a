// General_Store: the boards of a shop front, painted twice and left to the sun
// for forty years. The top coat (lightest) has cracked along the grain and come
// off in flakes; the first coat shows in patches, and bare grey wood below.
//
// What makes it read as that: losses that follow the grain and respect the
// boards, flakes whose rims stand up and throw a shadow, raised grain in the
// bare wood, nails with a rust run under each.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

constexpr float kBoard = 218.0F;  // mean height of a board, pixels

struct Board {
  int index;
  float toGap;  // pixels to the nearer gap
  float v;      // 0 at its top, 1 at its foot
};

Board BoardAt(float x, float y, std::uint32_t seed) {
  const auto edge = [&](int i) {
    return (static_cast<float>(i) + 0.22F * (Unit(HashAt(i, 0, seed)) - 0.5F)) * kBoard +
           1.6F * LineNoise(x / 260.0F, seed + 1 + static_cast<std::uint32_t>(i));
  };
  int index = FloorInt(y / kBoard);
  if (y < edge(index)) --index;
  if (y >= edge(index + 1)) ++index;
  const float top = edge(index);
  const float foot = edge(index + 1);
  return {index, Min(y - top, foot - y), (y - top) / (foot - top)};
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const auto shift = [&](int board) { return static_cast<float>(board) * 911.0F; };

  // Grain: long fibres that bend around nothing in particular, softer and
  // harder bands, each board cut from another tree.
  const Fbm bend{420.0F, 3, 0.5F, seed + 10};
  const Fbm bands{26.0F, 3, 0.6F, seed + 11};
  const Fbm fibre{3.6F, 3, 0.7F, seed + 12};
  Field grain = Painted(sheet, [&](Spot p) {
    const Board board = BoardAt(p.fx, p.fy, seed);
    const float x = p.fx + shift(board.index);
    const float y = p.fy + 26.0F * bend(x * 0.35F, p.fy);
    return 0.6F * bands(x * 0.035F, y) + 0.5F * fibre(x * 0.022F, y);
  });

  const Fbm weather{330.0F, 5, 0.55F, seed + 20};
  const Fbm nibble{30.0F, 4, 0.62F, seed + 21};
  const Cells flakes{44.0F, 1.0F, seed + 22};
  const Warp crooked{9.0F, {26.0F, 3, 0.6F, seed + 23}};
  Field loss = Painted(sheet, [&](Spot p) {
    const Board board = BoardAt(p.fx, p.fy, seed);
    const float x = p.fx + shift(board.index);
    const float luck = Unit(HashAt(board.index, 7, seed)) - 0.5F;
    const Spot q = crooked(p);
    const CellSample flake = flakes((q.fx + shift(board.index)) * 0.42F, q.fy);
    return 0.95F * weather(x * 0.5F, p.fy) + 0.34F * (flake.id - 0.5F) + 0.22F * grain(p) +
           0.16F * nibble(x * 0.4F, p.fy) + 0.30F * luck + 0.40F * Exp(-board.toGap / 14.0F);
  });
  const Field topCoat =
      Painted(sheet, [&](Spot p) { return 1.0F - SoftThreshold(loss(p), 0.10F, 0.035F); });
  const Field firstCoat =
      Painted(sheet, [&](Spot p) { return 1.0F - SoftThreshold(loss(p), 0.34F, 0.04F); });

  // A flake lifts along its rim: what the coat has over its own blur.
  Field spreadTop = topCoat;
  Blur(sheet, spreadTop, 7.0F);
  Field shade = topCoat;
  Blur(sheet, shade, 3.0F);

  const Fbm brush{4.0F, 2, 0.6F, seed + 30};
  const Fbm dirt{180.0F, 5, 0.55F, seed + 31};
  const auto gapOf = [&](Spot p) {
    return SmoothRamp(5.0F, 1.0F, BoardAt(p.fx, p.fy, seed).toGap);
  };
  Field height = Painted(sheet, [&](Spot p) {
    const float lift = topCoat(p) * (1.0F - spreadTop(p)) * 1.1F;
    return 0.45F * topCoat(p) + 0.30F * firstCoat(p) + lift +
           (1.0F - 0.75F * firstCoat(p)) * 0.40F * grain(p) + 0.05F * brush(p.fx * 0.06F, p.fy) -
           1.4F * gapOf(p);
  });
  const Field light = Relief(sheet, height, 0.20F);

  // Hair cracks across and along the grain where the coat still holds.
  const Cells crazing{30.0F, 1.0F, seed + 40};
  Field tone = Painted(sheet, [&](Spot p) {
    const Board board = BoardAt(p.fx, p.fy, seed);
    const float wood = 0.30F + 0.24F * grain(p) + 0.05F * dirt(p);
    const float first = 0.56F + 0.07F * dirt(p) + 0.05F * grain(p);
    const float top = 0.87F + 0.09F * dirt(p) + 0.03F * brush(p.fx * 0.06F, p.fy);
    float value = Mix(Mix(wood, first, firstCoat(p)), top, topCoat(p));
    const Spot q = crooked(p);
    const CellSample cell = crazing.WithEdge((q.fx + shift(board.index)) * 0.38F, q.fy);
    const float tired = SmoothRamp(-0.45F, 0.05F, loss(p)) * topCoat(p);
    value -= 0.30F * tired * SmoothRamp(0.06F, 0.02F, cell.edge);
    // The shadow that a lifted rim throws, down and to the right.
    const float cover = shade.Sample(p.fx - 4.0F, p.fy - 5.0F);
    value *= 1.0F - 0.55F * cover * (1.0F - topCoat(p));
    value += 0.17F * light(p);
    return value * (1.0F - 0.92F * gapOf(p)) * (1.0F - 0.25F * Exp(-board.toGap / 9.0F));
  });
  StretchTo(sheet, tone, 0.002F, 0.995F);
  return tone;
}

const RegisteredTexture kGeneralStore(TextureRecipe{
    .name = "General_Store",
    .set = TextureSet::kWallsAndSigns,
    .effects = {"Weathered/Aged", "Distress (Heavy)", "Woods", "Erosion (Heavy)"},
    .seed = 1887,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
