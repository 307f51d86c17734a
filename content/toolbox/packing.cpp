#include "toolbox/packing.h"

#include <algorithm>
#include <cstddef>

#include "toolbox/hash.h"
#include "toolbox/maths.h"

namespace tarnwick::content {
namespace {

// Which pieces lie in which square of the sheet, to look for neighbours.
class Floor {
 public:
  Floor(const Sheet& sheet, float side)
      : side_(side),
        columns_(FloorInt(static_cast<float>(sheet.width) / side) + 4),
        rows_(FloorInt(static_cast<float>(sheet.height) / side) + 4),
        squares_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_)) {}

  [[nodiscard]] bool IsFree(const Piece& piece, float gap) const {
    for (int j = -1; j <= 1; ++j) {
      for (int i = -1; i <= 1; ++i) {
        for (const Piece& other : squares_[Square(piece, i, j)]) {
          const float apart = piece.radius + other.radius + gap;
          if (Square2(piece.x - other.x, piece.y - other.y) < apart * apart) return false;
        }
      }
    }
    return true;
  }
  void Add(const Piece& piece) { squares_[Square(piece, 0, 0)].push_back(piece); }

 private:
  static float Square2(float x, float y) { return x * x + y * y; }
  [[nodiscard]] std::size_t Square(const Piece& piece, int i, int j) const {
    const int column = std::clamp(FloorInt(piece.x / side_) + 2 + i, 0, columns_ - 1);
    const int row = std::clamp(FloorInt(piece.y / side_) + 2 + j, 0, rows_ - 1);
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
           static_cast<std::size_t>(column);
  }

  float side_;
  int columns_, rows_;
  std::vector<std::vector<Piece>> squares_;
};

}  // namespace

std::vector<Piece> Packed(const Sheet& sheet, const PackStyle& style, std::uint32_t seed) {
  // Two of the largest that touch are at most a square apart.
  Floor floor(sheet, 2.0F * style.maxRadius + Max(style.gap, 0.0F));
  std::vector<Piece> pieces;
  const float area = static_cast<float>(sheet.width) * static_cast<float>(sheet.height);
  const int last = std::max(style.sizes - 1, 1);
  for (int step = 0; step <= last; ++step) {
    Dice dice(seed, step);
    const float share = static_cast<float>(step) / static_cast<float>(last);
    const float larger = style.maxRadius * Pow(style.minRadius / style.maxRadius, share);
    const int throws = FloorInt(style.effort * area / (4.0F * larger * larger)) + 2;
    for (int i = 0; i < throws; ++i) {
      const float radius = larger * dice.Between(0.8F, 1.0F);
      const float x = dice.Between(-radius, static_cast<float>(sheet.width) + radius);
      const float y = dice.Between(-radius, static_cast<float>(sheet.height) + radius);
      const Piece piece{x, y, radius, dice.Word()};
      if (!floor.IsFree(piece, style.gap)) continue;
      floor.Add(piece);
      pieces.push_back(piece);
    }
  }
  return pieces;
}

}  // namespace tarnwick::content
