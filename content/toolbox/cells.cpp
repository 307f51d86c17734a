#include "toolbox/cells.h"

#include "toolbox/hash.h"
#include "toolbox/maths.h"

namespace tarnwick::content {
namespace {

struct Point {
  float x, y;
  std::uint32_t hash;
};

// The point of square (ix, iy), relative to that square's own corner.
inline Point PointOf(int ix, int iy, float jitter, std::uint32_t seed) {
  const std::uint32_t h = HashAt(ix, iy, seed);
  const float px = static_cast<float>(h & 0xFFFFU) * (1.0F / 65536.0F);
  const float py = static_cast<float>(h >> 16) * (1.0F / 65536.0F);
  return {0.5F + (px - 0.5F) * jitter, 0.5F + (py - 0.5F) * jitter, h};
}

struct Nearest {
  CellSample sample;
  int ix = 0, iy = 0;  // square of the nearest point, relative
};

Nearest FindNearest(int ix, int iy, float fx, float fy, float jitter, std::uint32_t seed) {
  Nearest found;
  float best = 1e9F;
  float second = 1e9F;
  for (int j = -1; j <= 1; ++j) {
    for (int i = -1; i <= 1; ++i) {
      const Point p = PointOf(ix + i, iy + j, jitter, seed);
      const float dx = static_cast<float>(i) + p.x - fx;
      const float dy = static_cast<float>(j) + p.y - fy;
      const float d = dx * dx + dy * dy;
      if (d < best) {
        second = best;
        best = d;
        found.sample.hash = p.hash;
        found.sample.dx = dx;
        found.sample.dy = dy;
        found.ix = i;
        found.iy = j;
      } else if (d < second) {
        second = d;
      }
    }
  }
  found.sample.f1 = Sqrt(best);
  found.sample.f2 = Sqrt(second);
  found.sample.id = Unit(Hash(found.sample.hash));
  return found;
}

}  // namespace

CellSample Cells::operator()(float x, float y) const {
  x /= period;
  y /= period;
  const int ix = FloorInt(x);
  const int iy = FloorInt(y);
  return FindNearest(ix, iy, x - static_cast<float>(ix), y - static_cast<float>(iy), jitter, seed)
      .sample;
}

CellSample Cells::WithEdge(float x, float y) const {
  x /= period;
  y /= period;
  const int ix = FloorInt(x);
  const int iy = FloorInt(y);
  const float fx = x - static_cast<float>(ix);
  const float fy = y - static_cast<float>(iy);
  const Nearest nearest = FindNearest(ix, iy, fx, fy, jitter, seed);
  CellSample sample = nearest.sample;
  float edge = 1e9F;
  // The border with a neighbour lies half way, square to the line to it. The
  // search goes about the nearest point's square, or far neighbours are missed.
  for (int j = nearest.iy - 2; j <= nearest.iy + 2; ++j) {
    for (int i = nearest.ix - 2; i <= nearest.ix + 2; ++i) {
      if (i == nearest.ix && j == nearest.iy) continue;
      const Point p = PointOf(ix + i, iy + j, jitter, seed);
      const float dx = static_cast<float>(i) + p.x - fx;
      const float dy = static_cast<float>(j) + p.y - fy;
      const float ax = dx - sample.dx;
      const float ay = dy - sample.dy;
      const float apart = Length(ax, ay);
      if (apart < 1e-6F) continue;
      const float d = ((dx + sample.dx) * ax + (dy + sample.dy) * ay) / (2.0F * apart);
      if (d < edge) edge = d;
    }
  }
  sample.edge = edge;
  return sample;
}

Spots::Hit Spots::operator()(float x, float y) const {
  const int ix = FloorInt(x / period);
  const int iy = FloorInt(y / period);
  Hit hit;
  for (int j = -1; j <= 1; ++j) {
    for (int i = -1; i <= 1; ++i) {
      const std::uint32_t h = HashAt(ix + i, iy + j, seed);
      if (Unit(h) >= presence) continue;
      const std::uint32_t place = Hash(h + 1);
      const float size = Unit(Hash(h + 2));
      const float radius = Mix(minRadius, maxRadius, size * size * size);
      const float cx =
          (static_cast<float>(ix + i) + static_cast<float>(place & 0xFFFFU) / 65536.0F) * period;
      const float cy =
          (static_cast<float>(iy + j) + static_cast<float>(place >> 16) / 65536.0F) * period;
      const float dx = (x - cx) / radius;
      const float dy = (y - cy) / radius;
      const float d = dx * dx + dy * dy;
      if (d >= 1.0F) continue;
      const float depth = 1.0F - Sqrt(d);
      if (depth > hit.depth) hit = {depth, radius, Hash(h + 3), dx, dy};
    }
  }
  return hit;
}

}  // namespace tarnwick::content
