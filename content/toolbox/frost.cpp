#include "toolbox/frost.h"

#include <algorithm>

#include "toolbox/maths.h"
#include "toolbox/noise.h"

namespace tarnwick::content {
namespace {

// Which fern has taken a place, by squares of the pane.
class Pane {
 public:
  explicit Pane(const Sheet& sheet)
      : columns_(sheet.width / kSquare + 1),
        rows_(sheet.height / kSquare + 1),
        owner_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_), 0) {}

  [[nodiscard]] bool IsFree(float x, float y, int fern) const {
    const std::size_t at = IndexOf(x, y);
    return at == kOutside || owner_[at] == 0 || owner_[at] == fern;
  }
  void Take(float x, float y, int fern) {
    const std::size_t at = IndexOf(x, y);
    if (at != kOutside) owner_[at] = fern;
  }

 private:
  static constexpr int kSquare = 8;
  static constexpr std::size_t kOutside = ~std::size_t{0};

  [[nodiscard]] std::size_t IndexOf(float x, float y) const {
    const int column = FloorInt(x / static_cast<float>(kSquare));
    const int row = FloorInt(y / static_cast<float>(kSquare));
    if (column < 0 || row < 0 || column >= columns_ || row >= rows_) return kOutside;
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
           static_cast<std::size_t>(column);
  }

  int columns_, rows_;
  std::vector<int> owner_;
};

struct Feather {
  float x, y, heading, length, radius;
};

void GrowFeather(StrokeSet& strokes, Pane& pane, const Feather& feather, float side, int fern,
                 Dice& dice) {
  constexpr float kStep = 6.0F;
  float x = feather.x;
  float y = feather.y;
  float heading = feather.heading;
  for (float along = 0.0F; along < feather.length; along += kStep) {
    const float left = 1.0F - along / feather.length;
    const float nextX = x + kStep * Cos(heading);
    const float nextY = y + kStep * Sin(heading);
    if (!pane.IsFree(nextX, nextY, fern)) return;
    pane.Take(nextX, nextY, fern);
    const float radius = feather.radius * (0.35F + 0.65F * left);
    const StrokePoint rib[] = {{x, y, radius, 0.55F + 0.45F * left},
                               {nextX, nextY, radius, 0.55F + 0.45F * left}};
    strokes.Add(rib);
    const float barb = Min(26.0F, 0.42F * left * feather.length) * dice.Between(0.5F, 1.0F);
    for (const float hand : {-1.0F, 1.0F}) {
      const float angle = heading + hand * 0.95F;
      const StrokePoint points[] = {
          {nextX, nextY, 0.7F * radius, 0.75F},
          {nextX + barb * Cos(angle), nextY + barb * Sin(angle), 0.3F, 0.25F}};
      strokes.Add(points);
    }
    x = nextX;
    y = nextY;
    // Feathers lean forward as they grow.
    heading -= side * 0.006F * kStep * dice.Between(0.2F, 1.0F);
  }
}

void GrowFern(StrokeSet& strokes, Pane& pane, const FrostStyle& style, const Feather& stem,
              int fern, std::uint32_t seed, Dice& dice) {
  float x = stem.x;
  float y = stem.y;
  float heading = stem.heading;
  // Neighbours bend the same way, as if a draught had drawn them.
  const float draught = GradientNoise(stem.x / 420.0F, stem.y / 420.0F, seed);
  const float bend = style.bend * (2.2F * draught + dice.Around(0.0F, 0.4F));
  for (float along = 0.0F; along < stem.length; along += style.pace) {
    const float t = along / stem.length;
    const float nextX = x + style.pace * Cos(heading);
    const float nextY = y + style.pace * Sin(heading);
    if (!pane.IsFree(nextX, nextY, fern)) return;
    pane.Take(nextX, nextY, fern);
    const float radius = stem.radius * (1.0F - 0.7F * t);
    const StrokePoint rib[] = {{x, y, radius, 1.0F}, {nextX, nextY, radius, 1.0F}};
    strokes.Add(rib);
    // Longest a third of the way up, like a fern's.
    const float shape = Min(1.0F, 0.35F + 2.2F * t) * (1.0F - t);
    for (const float side : {-1.0F, 1.0F}) {
      const float length = style.spread * stem.length * shape * dice.Between(0.55F, 1.15F);
      const float aside = heading + side * style.angle * dice.Between(0.92F, 1.08F);
      GrowFeather(strokes, pane, {nextX, nextY, aside, length, 0.6F * radius + 0.3F}, side, fern,
                  dice);
    }
    x = nextX;
    y = nextY;
    // Towards its end it turns in more and more.
    heading += (bend * (0.6F + 1.6F * t) + dice.Around(0.0F, 0.12F)) * style.pace * 0.01F;
  }
}

}  // namespace

void AddFrost(StrokeSet& strokes, const Sheet& sheet, const Field& cold, const FrostStyle& style,
              std::uint32_t seed) {
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  Pane pane(sheet);
  for (int i = 0; i < style.tries; ++i) {
    Dice dice(seed, i);
    const float x = dice.Unit() * (width - 1.0F);
    const float y = dice.Unit() * (height - 1.0F);
    if (dice.Unit() > cold.Sample(x, y) || !pane.IsFree(x, y, i + 1)) continue;
    const float late = static_cast<float>(i) / static_cast<float>(style.tries);
    const float most = Mix(style.maxLength, style.minLength, Sqrt(late));
    const float length = Max(style.minLength, most * dice.Between(0.45F, 1.0F));
    float heading = 0.25F * kTau;  // down, from the upper rim
    float nearest = y;
    if (height - y < nearest) nearest = height - y, heading = -0.25F * kTau;
    if (x < nearest) nearest = x, heading = 0.0F;
    if (width - x < nearest) heading = 0.5F * kTau;
    heading += dice.Around(0.0F, 0.5F);
    GrowFern(strokes, pane, style, {x, y, heading, length, 1.1F + 1.7F * length / style.maxLength},
             i + 1, seed, dice);
  }
}

}  // namespace tarnwick::content
