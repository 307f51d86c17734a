#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

#include "toolbox/field.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"

namespace tarnwick::content {

// Short hair that lies downwards, hair over hair.
struct FurStyle {
  float length = 26.0F;  // pixels
  float radius = 1.3F;   // half width at the root
  float spacing = 2.6F;  // from root to root; under two radii leaves no skin
  float unruly = 0.16F;  // radians by which neighbours differ, about
  float bend = 3.0F;     // pixels by which a tip strays aside, at most
  std::uint32_t seed = 1;
};

// The hair that lies on top at a place.
struct FurSpot {
  float rootX = 0.0F, rootY = 0.0F;  // where it grows: it has the colour of that place
  float along = 0.0F;                // 0 root to 1 tip
  float across = 0.0F;               // -1..1 from side to side
  std::uint32_t hash = 0;            // one for each hair; 0 bare skin
};

class Fur {
 public:
  // lie(x, y): the heading of the coat at a place in radians, 0 straight down,
  // above 0 to the left; within about -1..1, and it has to change slowly.
  template <class Lie>
  Fur(const Sheet& sheet, const FurStyle& style, const Lie& lie)
      : width_(sheet.width),
        spots_(static_cast<std::size_t>(sheet.width) * static_cast<std::size_t>(sheet.height)) {
    ForRows(sheet.pool, 0, sheet.height, [&](int first, int last) {
      const int top = FloorInt((static_cast<float>(first) - style.length) / style.spacing) - 2;
      const int bottom = FloorInt(static_cast<float>(last) / style.spacing) + 2;
      const int left = FloorInt(-style.length / style.spacing) - 1;
      const int right =
          FloorInt((static_cast<float>(sheet.width) + style.length) / style.spacing) + 1;
      // From the bottom up: a hair lies on those that grow below its root.
      for (int row = bottom; row >= top; --row) {
        for (int column = left; column <= right; ++column) {
          const std::uint32_t hash = HashAt(column, row, style.seed) | 1U;
          const float rx = (static_cast<float>(column) + Unit(hash)) * style.spacing;
          const float ry = (static_cast<float>(row) + Unit(Hash(hash))) * style.spacing;
          const float stray = Unit(Hash(hash + 2)) + Unit(Hash(hash + 4)) - 1.0F;
          Lay(Hair{rx, ry, lie(rx, ry) + stray * style.unruly * 1.5F, hash}, style, first, last);
        }
      }
    });
  }
  [[nodiscard]] const FurSpot& operator()(const Spot& spot) const {
    return spots_[static_cast<std::size_t>(spot.y) * static_cast<std::size_t>(width_) +
                  static_cast<std::size_t>(spot.x)];
  }

 private:
  struct Hair {
    float x, y, heading;
    std::uint32_t hash;
  };
  // Rows first..last - 1 of one hair.
  void Lay(const Hair& hair, const FurStyle& style, int first, int last);

  int width_;
  std::vector<FurSpot> spots_;
};

}  // namespace tarnwick::content
