#include "toolbox/packing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace tarnwick::content {
namespace {

constexpr Sheet kSheet{600, 400, 1, nullptr};

float Apart(const Piece& a, const Piece& b) {
  return std::hypot(a.x - b.x, a.y - b.y) - a.radius - b.radius;
}

TEST(Packing, PiecesKeepTheirGap) {
  const struct {
    const char* name;
    PackStyle style;
  } kCases[] = {
      {"touching", {.maxRadius = 50.0F, .minRadius = 5.0F, .gap = 0.0F, .effort = 4.0F}},
      {"apart", {.maxRadius = 30.0F, .minRadius = 10.0F, .gap = 12.0F, .effort = 4.0F}},
      {"overlapping", {.maxRadius = 40.0F, .minRadius = 20.0F, .gap = -8.0F, .effort = 4.0F}},
      {"one size", {.maxRadius = 12.0F, .minRadius = 12.0F, .gap = 1.0F, .sizes = 1}},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.name);
    const std::vector<Piece> pieces = Packed(kSheet, c.style, 7);
    ASSERT_GT(pieces.size(), 20U);
    float closest = 1e9F;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
      EXPECT_LE(pieces[i].radius, c.style.maxRadius);
      EXPECT_GE(pieces[i].radius, 0.79F * c.style.minRadius);
      for (std::size_t j = 0; j < i; ++j) closest = std::min(closest, Apart(pieces[i], pieces[j]));
    }
    EXPECT_GE(closest, c.style.gap - 0.01F);
  }
}

// With many throws hardly a place is left where one of the smallest would fit.
TEST(Packing, FillsTheSheet) {
  const PackStyle style{
      .maxRadius = 40.0F, .minRadius = 8.0F, .gap = 0.0F, .effort = 12.0F, .sizes = 10};
  const std::vector<Piece> pieces = Packed(kSheet, style, 3);
  int free = 0, places = 0;
  for (float y = 20.0F; y < 380.0F; y += 9.0F) {
    for (float x = 20.0F; x < 580.0F; x += 9.0F) {
      const Piece probe{x, y, 8.0F, 0};
      ++places;
      free += std::none_of(pieces.begin(), pieces.end(),
                           [&](const Piece& p) { return Apart(p, probe) < 0.0F; });
    }
  }
  EXPECT_LT(free, places / 50);
}

TEST(Packing, PaintsWithinReachOnceWhateverTheThreads) {
  const std::vector<Piece> pieces = {
      {10.0F, 10.0F, 4.0F, 1}, {-2.0F, 39.5F, 5.0F, 2}, {59.0F, 20.0F, 8.0F, 3}};
  const auto painted = [&](ThreadPool* pool) {
    const Sheet sheet{60, 40, 1, pool};
    Field times(sheet);
    ForPieces(sheet, pieces, 1.5F, [&](const Piece&, Spot p, float dx, float dy) {
      if (dx * dx + dy * dy <= 1.5F * 1.5F) times.Row(p.y)[p.x] += 1.0F;
    });
    return times;
  };
  ThreadPool five(5);
  const Field alone = painted(nullptr);
  const Field split = painted(&five);
  for (int y = 0; y < 40; ++y) {
    for (int x = 0; x < 60; ++x) {
      float want = 0.0F;
      for (const Piece& p : pieces) {
        const double d = std::hypot(x - double{p.x}, y - double{p.y});
        if (d <= 1.5 * double{p.radius}) want += 1.0F;
      }
      EXPECT_EQ(alone(x, y), want) << x << ' ' << y;
      EXPECT_EQ(split(x, y), want) << x << ' ' << y;
    }
  }
}

}  // namespace
}  // namespace tarnwick::content
