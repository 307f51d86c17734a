#include <vector>

#include "barn.h"
#include "mesh_shapes.h"
#include "noise.h"
#include "portable_math.h"

namespace tarnwick::photo {
namespace {

constexpr float kWave = 0.078f;
constexpr float kDepth = 0.0085f;
constexpr int kPiecesPerWave = 8;

struct Sheet {
  Vec3 corner, across, down, normal;  // of the upper left corner
  float width, length, seed, lift;    // lift: how far the loose lower end is bent up
};

void AddSheet(Mesh& mesh, const Sheet& s) {
  const int columns = static_cast<int>(s.width / kWave * kPiecesPerWave);
  constexpr int kRows = 7;
  const auto first = static_cast<std::uint32_t>(mesh.vertices.size());
  for (int j = 0; j <= kRows; ++j) {
    for (int i = 0; i <= columns; ++i) {
      const float u = s.width * static_cast<float>(i) / static_cast<float>(columns);
      const float v = s.length * static_cast<float>(j) / kRows;
      const float phase = u / kWave * 2 * kPi;
      const float t = v / s.length;
      const float dent = 0.012f * Noise2(u * 1.9f + s.seed * 50, v * 1.4f) +
                         0.004f * Noise2(u * 7, v * 5 + s.seed * 31);
      const float bent = s.lift * t * t * t * (0.35f + 0.65f * Noise2(u * 1.3f + s.seed * 20, 4));
      const float height = kDepth * Sin(phase) + dent + bent + 0.004f * t;
      const float slope = kDepth * 2 * kPi / kWave * Cos(phase);
      // Edges were cut by hand.
      const float ragged = j == kRows ? 0.006f * Noise2(u * 9 + s.seed * 77, 1) : 0.0f;
      mesh.Add({s.corner + s.across * u + s.down * (v + ragged) + s.normal * height,
                Normalized(s.normal - s.across * slope), u + s.seed * 17, v + s.seed * 9});
    }
  }
  const auto at = [&](int i, int j) {
    return first + static_cast<std::uint32_t>(j * (columns + 1) + i);
  };
  for (int j = 0; j < kRows; ++j)
    for (int i = 0; i < columns; ++i)
      mesh.Quad(at(i, j), at(i + 1, j), at(i + 1, j + 1), at(i, j + 1), Material::kRoofTin, s.seed);
}

// Bent sheets over the ridge.
void AddRidge(Mesh& mesh, float from, float to, Random& random) {
  constexpr int kPieces = 10;
  float z = from;
  while (z > to) {
    const float end = Max(z - random.Range(1.6f, 2.0f), to);
    const float seed = random.Unit();
    const float rise = random.Range(0.0f, 0.012f);
    std::uint32_t before[2] = {};
    for (int i = 0; i <= kPieces; ++i) {
      const float t = (static_cast<float>(i) / kPieces * 2 - 1);
      const float a = t < 0 ? -t : t;
      const float x = -kBarnWidth / 2 + t * 0.19f;
      const float y = RoofHeight(-kBarnWidth / 2) + 0.055f + rise - 0.135f * a * Mix(a, 1, 0.55f);
      const auto p = mesh.Add({{x, y, z + 0.04f}, {}, static_cast<float>(i) * 0.04f, z});
      const auto q = mesh.Add({{x, y + 0.004f, end}, {}, static_cast<float>(i) * 0.04f, end});
      if (i > 0) mesh.Quad(before[0], p, q, before[1], Material::kRoofTin, seed);
      before[0] = p;
      before[1] = q;
    }
    z = end;
  }
}

}  // namespace

void AddRoof(Mesh& mesh) {
  Random random(37);
  const float rise = kRidgeHeight - kEaveHeight;
  const float run = kBarnWidth / 2;
  const float slopeLength = std::sqrt(rise * rise + run * run);
  constexpr float kOverhang = 0.38f;
  for (const float side : {1.0f, -1.0f}) {
    const Vec3 down{side * run / slopeLength, -rise / slopeLength, 0};
    const Vec3 normal{side * rise / slopeLength, run / slopeLength, 0};
    const float total = slopeLength + kOverhang;
    // The lower course first; the upper one laps over it.
    for (int course = 1; course >= 0; --course) {
      const float top = course == 0 ? 0.0f : total * 0.5f - 0.10f;
      const float bottom = course == 0 ? total * 0.5f + 0.06f : total;
      float z = 0.30f;
      int index = 0;
      while (z > -kBarnLength - 0.2f) {
        Sheet s;
        s.seed = random.Unit();
        s.width = 10 * kWave;
        s.across = {0, 0, -1};
        s.down = Normalized(down + Vec3{0, 0, random.Signed() * 0.004f});
        s.normal = normal;
        s.length = bottom - top + random.Range(-0.02f, 0.035f);
        s.lift = random.Unit() < 0.25f ? random.Range(0.02f, 0.07f) : 0.006f;
        const float lap = (index % 2 == 0 ? 0.0f : 0.004f) + (course == 0 ? 0.010f : 0.0f);
        s.corner = Vec3{-kBarnWidth / 2, RoofHeight(-kBarnWidth / 2) + 0.012f, z} +
                   down * (top + random.Signed() * 0.012f) + normal * lap;
        AddSheet(mesh, s);
        z -= s.width - kWave;
        ++index;
      }
    }
  }
  AddRidge(mesh, 0.32f, -kBarnLength - 0.22f, random);
}

}  // namespace tarnwick::photo
