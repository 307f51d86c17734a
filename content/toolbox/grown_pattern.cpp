#include "toolbox/grown_pattern.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

#include "toolbox/hash.h"
#include "toolbox/maths.h"

namespace tarnwick::content {
namespace {

// Three box means of 2 * radius + 1 along one way; the border repeats.
void BoxThrice(Field& field, int radius, bool downwards) {
  const int lines = downwards ? field.Width() : field.Height();
  const int count = downwards ? field.Height() : field.Width();
  std::vector<float> from(static_cast<std::size_t>(count)), to(from);
  const float share = 1.0F / static_cast<float>(2 * radius + 1);
  for (int line = 0; line < lines; ++line) {
    const auto at = [&](int i) -> float& {
      return downwards ? field.Row(i)[line] : field.Row(line)[i];
    };
    for (int i = 0; i < count; ++i) from[static_cast<std::size_t>(i)] = at(i);
    for (int pass = 0; pass < 3; ++pass) {
      for (int i = 0; i < count; ++i) {
        float sum = 0.0F;
        for (int k = -radius; k <= radius; ++k) {
          sum += from[static_cast<std::size_t>(std::clamp(i + k, 0, count - 1))];
        }
        to[static_cast<std::size_t>(i)] = sum * share;
      }
      from.swap(to);
    }
    for (int i = 0; i < count; ++i) at(i) = from[static_cast<std::size_t>(i)];
  }
}

Field Spread(const Field& field, int across, int along) {
  Field spread = field;
  BoxThrice(spread, across, false);
  BoxThrice(spread, along, true);
  return spread;
}

// The weights of four neighbours for a cubic spline, smooth to its curvature:
// straight interpolation would show the grid along a band's rim.
std::array<float, 4> SplineWeights(float t) {
  const float s = 1.0F - t;
  return {s * s * s / 6.0F, (4.0F - 6.0F * t * t + 3.0F * t * t * t) / 6.0F,
          (4.0F - 6.0F * s * s + 3.0F * s * s * s) / 6.0F, t * t * t / 6.0F};
}

}  // namespace

GrownPattern::GrownPattern(const Sheet& sheet, const PatternStyle& style)
    // The two spreads below favour bands 8.5 cells apart.
    : cell_(style.spacing / 8.5F) {
  const int columns = FloorInt(static_cast<float>(sheet.width) / cell_) + 1;
  const int rows = FloorInt(static_cast<float>(sheet.height) / cell_) + 1;
  const int besideX = columns / 5 + 4;
  const int besideY = rows / 5 + 4;
  marginX_ = static_cast<float>(besideX);
  marginY_ = static_cast<float>(besideY);
  grid_ = Field(columns + 2 * besideX, rows + 2 * besideY);
  for (int y = 0; y < grid_.Height(); ++y) {
    for (int x = 0; x < grid_.Width(); ++x) {
      // From the sheet's own corner, so that a small sheet is a cut-out.
      grid_.Row(y)[x] = Unit(HashAt(x - besideX, y - besideY, style.seed)) * 2.0F - 1.0F;
    }
  }
  const int along = style.aligned ? 2 : 1;
  for (int round = 0; round < style.rounds; ++round) {
    const Field near = Spread(grid_, 1, along);
    const Field far = Spread(grid_, 2, 2);
    for (int y = 0; y < grid_.Height(); ++y) {
      for (int x = 0; x < grid_.Width(); ++x) {
        const float pull = 6.0F * (near(x, y) - far(x, y)) + style.bias * (near(x, y) - 0.4F);
        grid_.Row(y)[x] = Clamp(0.25F * grid_(x, y) + pull, -1.0F, 1.0F);
      }
    }
  }
}

float GrownPattern::At(float x, float y) const {
  const float gx = Clamp(x / cell_ + marginX_, 1.0F, static_cast<float>(grid_.Width() - 3));
  const float gy = Clamp(y / cell_ + marginY_, 1.0F, static_cast<float>(grid_.Height() - 3));
  const int ix = FloorInt(gx);
  const int iy = FloorInt(gy);
  const std::array<float, 4> wx = SplineWeights(gx - static_cast<float>(ix));
  const std::array<float, 4> wy = SplineWeights(gy - static_cast<float>(iy));
  float sum = 0.0F;
  for (int j = 0; j < 4; ++j) {
    const float* row = grid_.Row(iy + j - 1) + ix - 1;
    sum += wy[static_cast<std::size_t>(j)] *
           (wx[0] * row[0] + wx[1] * row[1] + wx[2] * row[2] + wx[3] * row[3]);
  }
  return sum;
}

}  // namespace tarnwick::content
