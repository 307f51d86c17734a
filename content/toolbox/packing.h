#pragma once
#include <cstdint>
#include <vector>

#include "toolbox/field.h"

namespace tarnwick::content {

// Round pieces that lie close together and do not overlap, the large ones
// first and ever smaller ones in the gaps: pebbles, chips, blisters.
struct Piece {
  float x, y;    // its middle, up to a radius outside the sheet
  float radius;  // pixels
  std::uint32_t hash;
};

struct PackStyle {
  float maxRadius = 60.0F, minRadius = 10.0F;  // pixels
  float gap = 2.0F;                            // pixels between two; negative lets them overlap
  float effort = 3.0F;  // throws for each place that could hold one; 1 sparse, 6 full
  int sizes = 9;        // steps from the largest to the smallest
};

// In the order in which they were laid, the same for the same sheet.
[[nodiscard]] std::vector<Piece> Packed(const Sheet& sheet, const PackStyle& style,
                                        std::uint32_t seed);

// paint(piece, spot, dx, dy) for each place within `reach` radii of each piece,
// in the order of the pieces at every place; dx, dy from the piece's middle in
// radii. `paint` may write to that place alone and runs on several threads.
template <class Paint>
void ForPieces(const Sheet& sheet, const std::vector<Piece>& pieces, float reach,
               const Paint& paint) {
  ForRows(sheet.pool, 0, sheet.height, [&](int first, int last) {
    for (const Piece& piece : pieces) {
      const float extent = piece.radius * reach;
      if (piece.y + extent < static_cast<float>(first)) continue;
      if (piece.y - extent > static_cast<float>(last)) continue;
      const float top = piece.y - extent;
      const float left = piece.x - extent;
      const int y0 = top < static_cast<float>(first) ? first : static_cast<int>(top);
      const int x0 = left < 0.0F ? 0 : static_cast<int>(left);
      for (int y = y0; y < last; ++y) {
        const float fy = static_cast<float>(y);
        if (fy > piece.y + extent) break;
        for (int x = x0; x < sheet.width; ++x) {
          const float fx = static_cast<float>(x);
          if (fx > piece.x + extent) break;
          paint(piece, Spot{x, y, fx, fy}, (fx - piece.x) / piece.radius,
                (fy - piece.y) / piece.radius);
        }
      }
    }
  });
}

}  // namespace tarnwick::content
