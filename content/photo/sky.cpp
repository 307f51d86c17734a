#include "sky.h"

#include <algorithm>

#include "noise.h"
#include "portable_math.h"

namespace tarnwick::photo {
namespace {

constexpr int kDomeSide = 96;
// Sky pixels a side for one of the picture: clouds have no finer detail.
constexpr float kSeenScale = 0.4f;

float Abs(float v) {
  return v < 0 ? -v : v;
}

// The dome is folded onto a square like an octahedron; the horizon is its
// diamond, what lies below it fills the corners.
Vec3 DomeDirection(float u, float v) {
  float x = u * 2 - 1;
  float z = v * 2 - 1;
  const float y = 1 - Abs(x) - Abs(z);
  if (y < 0) {
    const float fold = x;
    x = (1 - Abs(z)) * (x < 0 ? -1.0f : 1.0f);
    z = (1 - Abs(fold)) * (z < 0 ? -1.0f : 1.0f);
  }
  return Normalized({x, y, z});
}

}  // namespace

const Sun& TheSun() {
  static const Sun sun{Normalized({0.74f, 0.44f, 0.42f}), Vec3{1.0f, 0.80f, 0.56f} * 3.9f, 0.012f};
  return sun;
}

Vec3 ClearSky(Vec3 d) {
  const float height = Max(d.y, 0);
  const float low = Pow(1 - height, 5);
  Vec3 sky = Mix(Vec3{0.115f, 0.225f, 0.44f}, Vec3{0.56f, 0.63f, 0.68f}, low);
  const float toSun = Max(Dot(d, TheSun().direction), 0);
  sky += Vec3{0.55f, 0.42f, 0.25f} * (0.45f * Pow(toSun, 6) + 1.2f * Pow(toSun, 60));
  sky += Vec3{0.14f, 0.09f, 0.03f} * (low * low);
  // Below the horizon it stands for sunlit land.
  return d.y < 0 ? Mix(sky, Vec3{0.22f, 0.22f, 0.13f}, Saturate(-d.y * 12)) : sky;
}

Haze HazeOver(float distance, Vec3 direction) {
  const Vec3 per{1.0f / 1700, 1.0f / 1350, 1.0f / 1000};  // blue is scattered most
  const Vec3 left{Exp(-distance * per.x), Exp(-distance * per.y), Exp(-distance * per.z)};
  const Vec3 air = ClearSky(Normalized({direction.x, 0.03f, direction.z})) * 0.80f;
  return {left, air * (Vec3{1, 1, 1} - left)};
}

Vec3 Sky::Map::At(float x, float y) const {
  const float fx = Clamp(x - 0.5f, 0, static_cast<float>(width - 1));
  const float fy = Clamp(y - 0.5f, 0, static_cast<float>(height - 1));
  const int ix = static_cast<int>(fx);
  const int iy = static_cast<int>(fy);
  const auto pixel = [&](int px, int py) {
    return pixels[static_cast<std::size_t>(std::min(py, height - 1)) *
                      static_cast<std::size_t>(width) +
                  static_cast<std::size_t>(std::min(px, width - 1))];
  };
  const float tx = fx - static_cast<float>(ix);
  const float ty = fy - static_cast<float>(iy);
  return Mix(Mix(pixel(ix, iy), pixel(ix + 1, iy), tx),
             Mix(pixel(ix, iy + 1), pixel(ix + 1, iy + 1), tx), ty);
}

Sky::Sky(const Camera& camera, int width, int height, ThreadPool& pool) : seenScale_(kSeenScale) {
  const auto fill = [&](Map& map, int w, int h, auto&& direction) {
    map.width = w;
    map.height = h;
    map.pixels.resize(static_cast<std::size_t>(w) * static_cast<std::size_t>(h));
    pool.ForRows(0, h, 4, [&](int first, int last) {
      for (int y = first; y < last; ++y) {
        for (int x = 0; x < w; ++x) {
          const std::uint32_t h2 =
              HashWords(static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y) + 77);
          map.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(w) +
                     static_cast<std::size_t>(x)] =
              CloudySky(direction(static_cast<float>(x) + 0.5f, static_cast<float>(y) + 0.5f),
                        UnitFloat(h2));
        }
      }
    });
  };
  fill(seen_, std::max(1, static_cast<int>(static_cast<float>(width) * kSeenScale)),
       std::max(1, static_cast<int>(static_cast<float>(height) * kSeenScale)),
       [&](float x, float y) { return camera.Direction(x / kSeenScale, y / kSeenScale); });
  fill(dome_, kDomeSide, kDomeSide,
       [](float x, float y) { return DomeDirection(x / kDomeSide, y / kDomeSide); });
}

Vec3 Sky::Seen(float x, float y) const {
  return seen_.At(x * seenScale_, y * seenScale_);
}

Vec3 Sky::Dome(Vec3 d) const {
  const float k = 1 / (Abs(d.x) + Abs(d.y) + Abs(d.z));
  float x = d.x * k;
  float z = d.z * k;
  if (d.y < 0) {
    const float fold = x;
    x = (1 - Abs(z)) * (x < 0 ? -1.0f : 1.0f);
    z = (1 - Abs(fold)) * (z < 0 ? -1.0f : 1.0f);
  }
  return dome_.At((x * 0.5f + 0.5f) * kDomeSide, (z * 0.5f + 0.5f) * kDomeSide);
}

}  // namespace tarnwick::photo
