// Dry_Brayer: printing ink rolled out on paper with a brayer that was nearly
// dry. Pass beside pass, each fading along its way, with a ridge of ink where
// the roller's end ran and bare paper where it skipped.
//
// What makes it read as that: bands of one breadth and one direction that
// overlap, streaks along them, a flaw of the roller that comes back at each
// turn, the tooth of the paper in the thin places.
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

struct Pass {
  float x, y;  // where it starts, in its own frame
  float cosine, sine;
  float length, load;
  std::uint32_t hash;
};

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float tall = static_cast<float>(sheet.height);
  constexpr float kHalf = 172.0F;  // half the roller's breadth
  constexpr float kTurn = 520.0F;  // its girth
  const Fbm tooth{4.4F, 3, 0.70F, seed};
  const Fbm fibre{15.0F, 4, 0.62F, seed + 5};
  const Fbm patch{120.0F, 5, 0.58F, seed + 10};
  const Fbm edge{34.0F, 4, 0.6F, seed + 16};
  const Fbm flaw{52.0F, 4, 0.6F, seed + 22};

  std::vector<Pass> passes;
  Dice dice(seed + 30);
  const int rows = FloorInt(tall / 230.0F) + 2;
  for (int i = 0; i < rows; ++i) {
    const int times = dice.Chance(0.4F) ? 2 : 1;
    for (int j = 0; j < times; ++j) {
      const float heading = dice.Around(-0.09F, 0.05F);
      const bool back = dice.Chance(0.5F);
      const float y =
          (static_cast<float>(i) + dice.Between(-0.35F, 0.35F)) * 230.0F + 0.09F * 0.5F * width;
      const float length = dice.Between(0.62F, 1.15F) * width;
      const float x =
          back ? width * dice.Between(0.86F, 1.06F) : width * dice.Between(-0.06F, 0.16F);
      const float sign = back ? -1.0F : 1.0F;
      const float load = dice.Between(0.45F, 1.0F);
      passes.push_back({x, back ? y - 0.09F * width : y, sign * Cos(heading), sign * Sin(heading),
                        length, load, dice.Word()});
    }
  }
  const Field paper = Painted(sheet, [&](Spot p) { return 0.62F * tooth(p) + 0.48F * fibre(p); });
  const Field rim = Painted(sheet, [&](Spot p) { return edge(p); });
  const Field uneven = Painted(sheet, [&](Spot p) { return patch(p); });
  Field ink(sheet);
  ForRows(sheet.pool, 0, sheet.height, [&](int first, int last) {
    for (const Pass& pass : passes) {
      for (int y = first; y < last; ++y) {
        const float dy = static_cast<float>(y) - pass.y;
        float* row = ink.Row(y);
        for (int x = 0; x < sheet.width; ++x) {
          const float dx = static_cast<float>(x) - pass.x;
          const float v = dy * pass.cosine - dx * pass.sine;
          if (v < -kHalf - 8.0F || v > kHalf + 8.0F) continue;
          const float u = dx * pass.cosine + dy * pass.sine;
          if (u < -20.0F || u > pass.length) continue;
          const float ragged = rim(x, y);
          const float inside = kHalf - Abs(v + 4.0F * ragged);
          const float band = SmoothRamp(-1.5F, 2.5F, inside);
          if (band <= 0.0F) continue;
          const float start = SmoothRamp(-12.0F, 4.0F, u + 9.0F * ragged);
          const float share = u / pass.length;
          const float streak = 0.34F * LineNoise(v / 30.0F, pass.hash) +
                               0.26F * LineNoise(v / 8.0F + 0.4F * ragged, pass.hash + 1) +
                               0.16F * LineNoise(v / 3.0F, pass.hash + 2);
          const float turned = Fraction(u / kTurn) * kTurn;
          const float bad = SmoothRamp(
              0.22F, 0.42F, flaw(0.45F * turned, v + static_cast<float>(pass.hash & 1023U)));
          float load = pass.load * (1.15F - 1.0F * share) + streak * (0.55F + 0.6F * share) +
                       0.26F * uneven(x, y) - 0.55F * bad;
          load += 0.35F * Exp(-Square((inside - 6.0F) / 4.0F)) * (0.5F + ragged);
          const float here = band * start * Clamp01(0.10F + load);
          row[x] = Screen(row[x], 0.88F * here);
        }
      }
    }
  });
  Field tone = Painted(sheet, [&](Spot p) {
    // Ink touches the tops of the paper first.
    const float amount = Clamp01(ink(p));
    const float touched = SmoothRamp(0.42F, 0.80F, amount * 1.25F + 0.42F * paper(p));
    const float dense = touched * (0.80F + 0.24F * amount) + 0.05F * amount;
    return 1.0F - dense * (0.94F + 0.12F * paper(p));
  });
  Soften(sheet, tone, 0.45F);
  StretchTo(sheet, tone, 0.004F, 0.90F);
  return tone;
}

const RegisteredTexture kDryBrayer(TextureRecipe{.name = "Dry_Brayer",
                                                 .set = TextureSet::kEssentials,
                                                 .effects = {"Distress (Heavy)", "Papers"},
                                                 .seed = 2300,
                                                 .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
