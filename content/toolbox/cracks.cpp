#include "toolbox/cracks.h"

#include <cstddef>
#include <deque>
#include <vector>

#include "toolbox/maths.h"

namespace tarnwick::content {
namespace {

struct Tip {
  float x, y, heading, length, radius, strength;
  int generation;
  int parent;  // crack it grows from, -1 for none
};

// Which crack passed through which small square, and where.
class Trace {
 public:
  explicit Trace(const Sheet& sheet)
      : columns_(sheet.width / kSide + 1),
        rows_(sheet.height / kSide + 1),
        marks_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_)) {}

  struct Mark {
    int crack = -1;
    float x = 0.0F, y = 0.0F;
  };

  [[nodiscard]] Mark* At(float x, float y) {
    const int column = FloorInt(x / kSide);
    const int row = FloorInt(y / kSide);
    if (column < 0 || row < 0 || column >= columns_ || row >= rows_) return nullptr;
    return &marks_[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
                   static_cast<std::size_t>(column)];
  }

  // A mark left by a crack other than the two given, in the square of (x, y)
  // or in one beside it.
  [[nodiscard]] const Mark* Meet(float x, float y, int self, int parent) {
    for (int j = -1; j <= 1; ++j) {
      for (int i = -1; i <= 1; ++i) {
        const Mark* mark = At(x + static_cast<float>(i) * kSide, y + static_cast<float>(j) * kSide);
        if (mark != nullptr && mark->crack >= 0 && mark->crack != self && mark->crack != parent) {
          return mark;
        }
      }
    }
    return nullptr;
  }

 private:
  static constexpr int kSide = 6;
  int columns_, rows_;
  std::vector<Mark> marks_;
};

class Grower {
 public:
  Grower(StrokeSet& strokes, const Sheet& sheet, const CrackStyle& style, std::uint32_t seed)
      : strokes_(strokes), style_(style), seed_(seed), trace_(sheet) {}

  void Start(float x, float y, float heading, float length) {
    tips_.push_back({x, y, heading, length, style_.radius, 1.0F, 0, -1});
  }

  // Broad first: the old cracks are there before their branches run into them.
  void GrowAll() {
    while (!tips_.empty()) {
      const Tip tip = tips_.front();
      tips_.pop_front();
      Grow(tip, count_++);
    }
  }

 private:
  void Grow(const Tip& tip, int self) {
    Dice dice(seed_, self);
    std::vector<StrokePoint> points;
    float x = tip.x;
    float y = tip.y;
    float heading = tip.heading;
    float toBranch = style_.branchEvery * dice.Between(0.4F, 1.2F);
    bool met = false;
    for (float run = 0.0F; run < tip.length && !met; run += style_.step) {
      const float left = 1.0F - run / tip.length;
      const float width = tip.radius * Sqrt(left) * dice.Between(0.7F, 1.25F);
      points.push_back({x, y, width, tip.strength * (0.35F + 0.65F * left)});
      Trace::Mark* here = trace_.At(x, y);
      if (here != nullptr && here->crack < 0) *here = {self, x, y};

      heading += dice.Around(0.0F, style_.jerk) + (tip.heading - heading) * style_.pull;
      x += Cos(heading) * style_.step;
      y += Sin(heading) * style_.step;
      // Not on its first pieces, which still lie beside the parent's others.
      if (run > 3.0F * style_.step) {
        if (const Trace::Mark* other = trace_.Meet(x, y, self, -1)) {
          points.push_back({other->x, other->y, width, points.back().strength});
          met = true;
        }
      }
      toBranch -= style_.step;
      if (toBranch < 0.0F && !met) {
        toBranch = style_.branchEvery * dice.Between(0.5F, 1.5F);
        Branch(tip, self, dice, x, y, heading, left);
      }
    }
    strokes_.Add(points);
  }

  void Branch(const Tip& tip, int self, Dice& dice, float x, float y, float heading, float left) {
    if (tip.generation + 1 >= style_.generations) return;
    const float side = dice.Chance(0.5F) ? 1.0F : -1.0F;
    const float angle = style_.branchAngle * dice.Between(0.67F, 1.33F);
    const float share = style_.branchShare * dice.Between(0.5F, 1.2F);
    tips_.push_back({x, y, heading + side * angle, tip.length * share * (0.4F + 0.6F * left),
                     tip.radius * Min(share, 0.9F) * Sqrt(left), tip.strength * 0.85F,
                     tip.generation + 1, self});
  }

  StrokeSet& strokes_;
  const CrackStyle& style_;
  std::uint32_t seed_;
  Trace trace_;
  std::deque<Tip> tips_;
  int count_ = 0;
};

}  // namespace

void AddCracks(StrokeSet& strokes, const Sheet& sheet, const CrackStyle& style,
               std::uint32_t seed) {
  Grower grower(strokes, sheet, style, seed);
  Dice dice(seed);
  for (int i = 0; i < style.starts; ++i) {
    const float x = dice.Unit() * static_cast<float>(sheet.width);
    const float y = dice.Unit() * static_cast<float>(sheet.height);
    const float heading = dice.Between(0.0F, kTau);
    const float length = style.length * dice.Between(0.5F, 1.5F);
    // It opened in the middle and ran both ways.
    const float back = heading + kPi + dice.Around(0.0F, 0.2F);
    const float backLength = length * dice.Between(0.5F, 1.0F);
    grower.Start(x, y, heading, length);
    grower.Start(x, y, back, backLength);
  }
  grower.GrowAll();
}

void AddCrack(StrokeSet& strokes, const Sheet& sheet, const CrackStyle& style, float x, float y,
              float heading, std::uint32_t seed) {
  Grower grower(strokes, sheet, style, seed);
  grower.Start(x, y, heading, style.length);
  grower.GrowAll();
}

}  // namespace tarnwick::content
