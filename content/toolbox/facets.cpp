#include "toolbox/facets.h"

#include "toolbox/hash.h"
#include "toolbox/maths.h"

namespace tarnwick::content {
namespace {

struct Point {
  float x, y, height;
};

Point PointOf(const Facets& facets, int ix, int iy) {
  const std::uint32_t h = HashAt(ix, iy, facets.seed);
  const float jx = static_cast<float>(h & 0xFFFFU) * (1.0F / 65536.0F) - 0.5F;
  const float jy = static_cast<float>(h >> 16) * (1.0F / 65536.0F) - 0.5F;
  return {static_cast<float>(ix) + jx * facets.jitter, static_cast<float>(iy) + jy * facets.jitter,
          Unit(Hash(h + 9)) * 2.0F - 1.0F};
}

// Whether (x, y) lies in the triangle, and then the height there.
bool Within(const Point& a, const Point& b, const Point& c, float x, float y, float& height) {
  const float bx = b.x - a.x, by = b.y - a.y;
  const float cx = c.x - a.x, cy = c.y - a.y;
  const float area = bx * cy - by * cx;
  if (Abs(area) < 1e-6F) return false;
  const float px = x - a.x, py = y - a.y;
  const float u = (px * cy - py * cx) / area;
  const float v = (bx * py - by * px) / area;
  constexpr float kSlack = -1e-4F;  // a place on an edge belongs to some face
  if (u < kSlack || v < kSlack || u + v > 1.0F - kSlack) return false;
  height = a.height + u * (b.height - a.height) + v * (c.height - a.height);
  return true;
}

}  // namespace

float Facets::operator()(float x, float y) const {
  x /= period;
  y /= period;
  const int ix = FloorInt(x);
  const int iy = FloorInt(y);
  // Most places lie in the quad of their own lattice square.
  static constexpr int kOrder[9][2] = {{0, 0},   {-1, 0}, {1, 0},  {0, -1}, {0, 1},
                                       {-1, -1}, {1, -1}, {-1, 1}, {1, 1}};
  for (const auto& step : kOrder) {
    const int qx = ix + step[0];
    const int qy = iy + step[1];
    const Point a = PointOf(*this, qx, qy);
    const Point b = PointOf(*this, qx + 1, qy);
    const Point c = PointOf(*this, qx + 1, qy + 1);
    const Point d = PointOf(*this, qx, qy + 1);
    float height = 0.0F;
    if (HashAt(qx, qy, seed + 3) & 1U) {
      if (Within(a, b, c, x, y, height) || Within(a, c, d, x, y, height)) return height;
    } else {
      if (Within(a, b, d, x, y, height) || Within(b, c, d, x, y, height)) return height;
    }
  }
  return PointOf(*this, ix, iy).height;
}

}  // namespace tarnwick::content
