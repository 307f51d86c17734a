#include "noise.h"

namespace tarnwick::photo {
namespace {

constexpr int Floor(float v) {
  const int i = static_cast<int>(v);
  return v < static_cast<float>(i) ? i - 1 : i;
}

constexpr std::uint32_t Corner(int x, int y, int z) {
  std::uint32_t h = static_cast<std::uint32_t>(x) * 0x8da6b343u ^
                    static_cast<std::uint32_t>(y) * 0xd8163841u ^
                    static_cast<std::uint32_t>(z) * 0xcb1ab31fu;
  h ^= h >> 15;
  h *= 0x2c1b3c6du;
  h ^= h >> 13;
  h *= 0x297a2d39u;
  return h ^ (h >> 16);
}

// The scalar product with one of twelve edge directions.
constexpr float Gradient(std::uint32_t h, float x, float y, float z) {
  h &= 15u;
  const float u = h < 8 ? x : y;
  const float v = h < 4 ? y : (h == 12 || h == 14 ? x : z);
  return ((h & 1u) != 0 ? -u : u) + ((h & 2u) != 0 ? -v : v);
}

constexpr float Gradient2(std::uint32_t h, float x, float y) {
  // Eight directions; the long ones are shortened to the length of the others.
  const float u = (h & 4u) != 0 ? y : x;
  const float v = (h & 4u) != 0 ? x : y;
  return ((h & 1u) != 0 ? -u : u) + ((h & 2u) != 0 ? -0.5f * v : 0.5f * v);
}

constexpr float Fade(float t) {
  return t * t * t * (t * (t * 6 - 15) + 10);
}

}  // namespace

float Noise2(float x, float y) {
  const int ix = Floor(x);
  const int iy = Floor(y);
  const float fx = x - static_cast<float>(ix);
  const float fy = y - static_cast<float>(iy);
  const float u = Fade(fx);
  const float v = Fade(fy);
  const float a = Gradient2(Corner(ix, iy, 7), fx, fy);
  const float b = Gradient2(Corner(ix + 1, iy, 7), fx - 1, fy);
  const float c = Gradient2(Corner(ix, iy + 1, 7), fx, fy - 1);
  const float d = Gradient2(Corner(ix + 1, iy + 1, 7), fx - 1, fy - 1);
  return 1.35f * Mix(Mix(a, b, u), Mix(c, d, u), v);
}

float Noise3(Vec3 p) {
  const int ix = Floor(p.x);
  const int iy = Floor(p.y);
  const int iz = Floor(p.z);
  const float fx = p.x - static_cast<float>(ix);
  const float fy = p.y - static_cast<float>(iy);
  const float fz = p.z - static_cast<float>(iz);
  const float u = Fade(fx);
  const float v = Fade(fy);
  const float w = Fade(fz);
  float layer[2];
  for (int k = 0; k < 2; ++k) {
    const float z = fz - static_cast<float>(k);
    const float a = Gradient(Corner(ix, iy, iz + k), fx, fy, z);
    const float b = Gradient(Corner(ix + 1, iy, iz + k), fx - 1, fy, z);
    const float c = Gradient(Corner(ix, iy + 1, iz + k), fx, fy - 1, z);
    const float d = Gradient(Corner(ix + 1, iy + 1, iz + k), fx - 1, fy - 1, z);
    layer[k] = Mix(Mix(a, b, u), Mix(c, d, u), v);
  }
  return Mix(layer[0], layer[1], w);
}

float Fbm2(float x, float y, int octaves) {
  float sum = 0;
  float weight = 0.5f;
  for (int i = 0; i < octaves; ++i) {
    sum += weight * Noise2(x, y);
    weight *= 0.5f;
    // Turned a little from octave to octave, or the grids would show.
    const float nx = 1.6f * x + 1.2f * y + 17.3f;
    y = 1.6f * y - 1.2f * x + 5.9f;
    x = nx;
  }
  return sum * 1.3f;
}

float Fbm3(Vec3 p, int octaves) {
  float sum = 0;
  float weight = 0.5f;
  for (int i = 0; i < octaves; ++i) {
    sum += weight * Noise3(p);
    weight *= 0.5f;
    p = {1.6f * p.x + 1.2f * p.z + 3.1f, 2.0f * p.y + 11.7f, 1.6f * p.z - 1.2f * p.x + 7.9f};
  }
  return sum * 1.3f;
}

Cell Cells2(float x, float y) {
  const int ix = Floor(x);
  const int iy = Floor(y);
  Cell cell;
  float first = 9;
  float second = 9;
  for (int j = -1; j <= 1; ++j) {
    for (int i = -1; i <= 1; ++i) {
      const std::uint32_t h = Corner(ix + i, iy + j, 31);
      const float px = static_cast<float>(ix + i) + UnitFloat(h) - x;
      const float py = static_cast<float>(iy + j) + UnitFloat(HashWord(h)) - y;
      const float d = px * px + py * py;
      if (d < first) {
        second = first;
        first = d;
        cell.id = h;
      } else if (d < second) {
        second = d;
      }
    }
  }
  cell.nearest = std::sqrt(first);
  cell.second = std::sqrt(second);
  return cell;
}

}  // namespace tarnwick::photo
