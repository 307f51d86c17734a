// Beetle_Galleries: a dead spruce whose bark has fallen off. Under it beetles
// bored: each mother's gallery runs along the trunk, and from both its sides
// the young ate their own ways, growing as they went and bending apart, to end
// in a chamber.
//
// What makes it read as that: a straight spine, ribs that start thin and end
// thick, none crossing another, all cut into smooth grey wood with dust in it.
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

// Ways that were eaten already, by squares; one way keeps off another.
class Eaten {
 public:
  explicit Eaten(const Sheet& sheet)
      : columns_(sheet.width / kSquare + 1),
        rows_(sheet.height / kSquare + 1),
        by_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_), 0) {}
  // Marks the place; false if another way was there.
  bool Enter(float x, float y, int way) {
    const int column = FloorInt(x / static_cast<float>(kSquare));
    const int row = FloorInt(y / static_cast<float>(kSquare));
    if (column < 0 || row < 0 || column >= columns_ || row >= rows_) return true;
    int& by = by_[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
                  static_cast<std::size_t>(column)];
    if (by != 0 && by != way) return false;
    by = way;
    return true;
  }

 private:
  static constexpr int kSquare = 12;
  int columns_, rows_;
  std::vector<int> by_;
};

void AddBrood(StrokeSet& strokes, Eaten& eaten, float x, float y, float length, int brood,
              Dice& dice) {
  const float lean = 0.25F * kTau + dice.Around(0.0F, 0.10F);
  const int spineWay = brood * 1000;
  std::vector<StrokePoint> spine;
  float heading = lean;
  int rib = 0;
  for (float along = 0.0F; along < length; along += 11.0F) {
    if (!eaten.Enter(x, y, spineWay)) break;
    spine.push_back({x, y, 9.0F + dice.Around(0.0F, 0.8F), 1.0F});
    heading += dice.Around(0.0F, 0.05F) + 0.1F * (lean - heading);
    for (const float side : {-1.0F, 1.0F}) {
      if (!dice.Chance(0.80F)) continue;
      const int way = spineWay + ++rib;
      // From the middle straight aside, from the ends bent away along the trunk.
      const float share = 2.0F * along / length - 1.0F;
      float to = lean - side * (0.25F * kTau - 0.75F * share);
      const float turn = -side * share * 0.0035F;
      const float far = length * dice.Between(0.30F, 0.62F) * (1.0F - 0.35F * Abs(share));
      float wx = x + 12.0F * Cos(to);
      float wy = y + 12.0F * Sin(to);
      std::vector<StrokePoint> eatenWay;
      float wobble = 0.0F;
      for (float w = 0.0F; w < far; w += 7.0F) {
        if (w > 12.0F && !eaten.Enter(wx, wy, way)) break;
        const float size = 1.7F + 4.6F * w / far;
        eatenWay.push_back({wx, wy, size, 0.65F + 0.35F * w / far});
        wobble = 0.8F * wobble + dice.Around(0.0F, 0.09F);
        to += turn * 7.0F + wobble * 0.5F;
        wx += 7.0F * Cos(to);
        wy += 7.0F * Sin(to);
      }
      if (eatenWay.size() < 5) continue;
      if (eatenWay.size() > static_cast<std::size_t>(far / 7.0F) - 1) {
        eatenWay.back().radius = 9.0F;
        eatenWay.push_back({wx + 7.0F * Cos(to), wy + 7.0F * Sin(to), 8.0F, 1.0F});
      }
      strokes.Add(eatenWay);
    }
    x += 11.0F * Cos(heading);
    y += 11.0F * Sin(heading);
  }
  if (spine.size() > 3) strokes.Add(spine);
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  StrokeSet strokes;
  Eaten eaten(sheet);
  const int broods = FloorInt(22.0F * width * height / (2048.0F * 1536.0F)) + 2;
  for (int i = 0; i < broods; ++i) {
    Dice dice(seed + 1, i);
    const float x = dice.Unit() * width;
    const float y = dice.Between(-0.15F, 0.9F) * height;
    const float length = dice.Between(230.0F, 560.0F);
    AddBrood(strokes, eaten, x, y, length, i + 1, dice);
  }
  Field way(sheet);
  strokes.Draw(
      sheet, way,
      {.profile = StrokeProfile::kRound, .ragged = 1.6F, .raggedPeriod = 9.0F, .seed = seed + 2});
  const Fbm sway{520.0F, 3, 0.5F, seed + 10};
  const Fbm bands{34.0F, 3, 0.55F, seed + 11};
  const Fbm fibre{3.0F, 3, 0.7F, seed + 12};
  const Fbm check{44.0F, 4, 0.5F, seed + 13};
  const Fbm where{300.0F, 3, 0.5F, seed + 14};
  struct Grain {
    float tone, split;
  };
  const Survey<Grain> grain(sheet, [&](Spot p) {
    // The trunk stands; its grain winds a little.
    const float x = p.fx + 30.0F * sway(p.fx, p.fy * 0.4F) + 0.05F * p.fy;
    const float open = SoftThreshold(where(p.fx, p.fy * 0.4F), 0.12F, 0.4F);
    const float split =
        open > 0.0F ? open * SmoothRamp(0.042F, 0.014F, Abs(check(x, p.fy * 0.018F))) : 0.0F;
    return Grain{0.6F * bands(x, p.fy * 0.02F) + 0.5F * fibre(x, p.fy * 0.035F), split};
  });
  const Fbm dust{3.4F, 2, 0.75F, seed + 20};
  const Fbm cloud{320.0F, 5, 0.58F, seed + 21};
  const Fbm bast{110.0F, 6, 0.62F, seed + 22};  // shreds of inner bark that stayed
  const Field relief = Painted(sheet, [&](Spot p) {
    return -6.5F * way(p) + 0.45F * grain(p).tone - 2.5F * grain(p).split +
           0.25F * dust(p) * way(p) +
           1.2F * SoftThreshold(bast(p.fx * 1.4F, p.fy * 0.45F), 0.40F, 0.04F) * (1.0F - way(p));
  });
  const Field light = Relief(sheet, relief, 0.42F);
  Field tone = Painted(sheet, [&](Spot p) {
    const float shred = SoftThreshold(bast(p.fx * 1.4F, p.fy * 0.45F), 0.40F, 0.05F);
    float value = 0.74F + 0.16F * grain(p).tone + 0.14F * cloud(p) + 0.02F * dust(p);
    value = Mix(value, 0.50F + 0.14F * grain(p).tone + 0.06F * dust(p), 0.75F * shred);
    const float bottom = 0.38F + 0.10F * cloud(p) + 0.10F * dust(p) + 0.05F * grain(p).tone;
    value = Mix(value, bottom, SmoothRamp(0.05F, 0.6F, way(p)));
    value *= 1.0F - 0.80F * grain(p).split;
    return value + 0.34F * light(p);
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.004F, 0.995F);
  return tone;
}

const RegisteredTexture kBeetleGalleries(TextureRecipe{
    .name = "Beetle_Galleries",
    .set = TextureSet::kTimberYard,
    .effects = {"Woods", "Erosion (Medium)", "Texture (Medium)"},
    .seed = 3006,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
