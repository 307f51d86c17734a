// River_Pebbles: the bed of a mountain stream at low water. Stones of every
// size, worn round, lie in one another's gaps; some are banded, some speckled.
//
// What makes it read as that: no two of the same outline, large ones settled
// among small, each with a light side and a dark foot where it touches the
// next, grit in the last gaps.
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/packing.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

struct Shape {
  float long_, short_;  // of its two axes, shares of the radius
  float cosine, sine;
};

Shape ShapeOf(const Piece& piece) {
  const float way = Unit(Hash(piece.hash + 1)) * kPi;
  return {1.10F, 0.72F + 0.36F * Unit(Hash(piece.hash + 2)), Cos(way), Sin(way)};
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const std::vector<Piece> stones = Packed(
      sheet, {.maxRadius = 112.0F, .minRadius = 9.0F, .gap = -5.0F, .effort = 5.0F, .sizes = 12},
      seed);
  const Fbm dent{70.0F, 2, 0.4F, seed + 10};
  const Fbm grain{4.0F, 3, 0.7F, seed + 20};
  const Fbm mottle{26.0F, 4, 0.6F, seed + 24};
  const Fbm damp{420.0F, 4, 0.5F, seed + 30};
  const Cells grit{7.0F, 1.0F, seed + 34};

  // How high stone stands above the bed, and whose it is.
  Field top(sheet, 0.0F);
  std::vector<int> owner(
      static_cast<std::size_t>(sheet.width) * static_cast<std::size_t>(sheet.height), -1);
  ForPieces(sheet, stones, 1.25F, [&](const Piece& stone, Spot p, float dx, float dy) {
    const Shape shape = ShapeOf(stone);
    const float u = (dx * shape.cosine + dy * shape.sine) / shape.long_;
    const float v = (dy * shape.cosine - dx * shape.sine) / shape.short_;
    // Between a circle and a square, as river stones are, and dented.
    const float around = static_cast<float>(stone.hash & 0xFFFU);
    const float dented = dent(dx * 66.0F + around * 61.0F, dy * 66.0F + around * 37.0F);
    const float r =
        Sqrt(Sqrt(Square(u * u) + Square(v * v) + 1.35F * u * u * v * v)) + 0.15F * dented;
    if (r >= 1.0F) return;
    const float dome = Sqrt(1.0F - r * r);
    const float high = dome * stone.radius * (0.42F + 0.2F * Unit(Hash(stone.hash + 3)));
    float* here = top.Row(p.y) + p.x;
    if (high <= *here) return;
    *here = high;
    owner[static_cast<std::size_t>(p.y) * static_cast<std::size_t>(sheet.width) +
          static_cast<std::size_t>(p.x)] = static_cast<int>(&stone - stones.data());
  });
  const Field height = Painted(sheet, [&](Spot p) {
    const float bed = 2.0F * SmoothRamp(0.9F, 0.1F, grit(p.fx, p.fy).f1);
    return Max(top(p), bed) + 0.22F * grain(p);
  });
  const Field light = Relief(sheet, height, 0.80F);
  Field around = height;
  Blur(sheet, around, 9.0F);
  Field far = height;
  Blur(sheet, far, 40.0F);
  Field tone = Painted(sheet, [&](Spot p) {
    const int index = owner[static_cast<std::size_t>(p.y) * static_cast<std::size_t>(sheet.width) +
                            static_cast<std::size_t>(p.x)];
    float value = 0.20F + 0.16F * grit(p.fx, p.fy).id;
    if (index >= 0) {
      const Piece& stone = stones[static_cast<std::size_t>(index)];
      const Shape shape = ShapeOf(stone);
      const float kind = Unit(Hash(stone.hash + 5));
      const float u = p.fx * shape.cosine + p.fy * shape.sine;
      const float v = p.fy * shape.cosine - p.fx * shape.sine;
      value = 0.34F + 0.46F * Unit(Hash(stone.hash + 6)) * Unit(Hash(stone.hash + 7)) +
              0.05F * mottle(p);
      if (kind < 0.22F) {
        value += 0.13F * LineNoise((v + 5.0F * mottle(p)) / 7.0F, stone.hash);
      } else if (kind < 0.34F) {
        value =
            Mix(value, 0.93F,
                Exp(-Square((v + 9.0F * mottle(p) - 300.0F * (Unit(stone.hash) - 0.5F)) / 500.0F)) *
                    SmoothRamp(0.72F, 0.86F,
                               LineNoise((0.4F * u + v) / 16.0F + 2.0F * mottle(p), stone.hash)));
      } else if (kind < 0.62F) {
        value += 0.20F * SmoothRamp(0.10F, 0.5F, grain(p.fx * 0.6F, p.fy * 0.6F)) -
                 0.14F * SmoothRamp(0.15F, 0.5F, mottle(p.fx * 2.1F, p.fy * 2.1F));
      } else if (kind > 0.94F) {
        value = 0.90F + 0.05F * mottle(p);
      }
    }
    value += 0.04F * grain(p) + 0.04F * damp(p);
    value *= 1.0F + 0.42F * light(p);
    value += 0.10F * Max(light(p), 0.0F);
    // Light does not get down between stones.
    value *= 1.0F - 0.75F * SmoothRamp(0.0F, 12.0F, around(p) - height(p));
    return value * (1.0F - 0.45F * SmoothRamp(0.0F, 30.0F, far(p) - height(p)));
  });
  Soften(sheet, tone, 0.5F);
  StretchTo(sheet, tone, 0.004F, 0.996F);
  return tone;
}

const RegisteredTexture kRiverPebbles(TextureRecipe{
    .name = "River_Pebbles",
    .set = TextureSet::kQuarry,
    .effects = {"Stone/Minerals", "Texture (Heavy)", "Erosion (Medium)"},
    .seed = 2070,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
