#include "barn.h"
#include "mesh_shapes.h"
#include "noise.h"

namespace tarnwick::photo {
namespace {

// A bar or board between two points in the given material.
void Bar(Mesh& mesh, Vec3 from, Vec3 to, Vec3 outward, float width, float thickness,
         Material material, float seed) {
  Board b = BoardBetween(from, to, outward, width, thickness);
  b.material = material;
  b.seed = seed;
  b.warp = 0.002f;
  b.vStart = 1.2f;
  AddBoard(mesh, b);
}

// A window in the long side: frame, sash bars and four panes.
void AddWindow(Mesh& mesh, float z, Random& random) {
  constexpr float kW = kWindowHalfWidth;
  constexpr float kH = kWindowHalfHeight;
  constexpr float kY = kWindowY;
  const Vec3 out{1, 0, 0};
  const auto bar = [&](Vec3 a, Vec3 b, float width, float thickness, float x) {
    Bar(mesh, a + Vec3{x, kY, z}, b + Vec3{x, kY, z}, out, width, thickness, Material::kBoardWhite,
        random.Unit());
  };
  bar({0, -kH - 0.05f, -kW}, {0, kH + 0.05f, -kW}, 0.10f, 0.028f, 0.025f);
  bar({0, -kH - 0.05f, kW}, {0, kH + 0.05f, kW}, 0.10f, 0.028f, 0.026f);
  bar({0, kH, -kW - 0.09f}, {0, kH, kW + 0.09f}, 0.11f, 0.030f, 0.032f);
  bar({0, -kH, -kW - 0.10f}, {0, -kH, kW + 0.10f}, 0.06f, 0.085f, 0.05f);
  bar({0, -kH, 0}, {0, kH, 0}, 0.034f, 0.026f, -0.006f);
  bar({0, 0.02f, -kW}, {0, 0.02f, kW}, 0.034f, 0.026f, -0.005f);
  for (int i = 0; i < 4; ++i) {
    const float z0 = z + (i % 2 == 0 ? -kW : 0.0f);
    const float y0 = kY + (i / 2 == 0 ? -kH : 0.0f);
    const float seed = random.Unit();
    const auto p = [&](float a, float b) {
      return mesh.Add({{-0.012f, y0 + b * kH, z0 + a * kW}, {}, a, b});
    };
    mesh.Quad(p(0, 0), p(1, 0), p(1, 1), p(0, 1), Material::kGlass, seed);
  }
}

}  // namespace

void AddTrim(Mesh& mesh) {
  Random random(53);
  const Vec3 out{0, 0, 1};
  // Corner boards, on both faces of the near corner and at the far ends.
  Bar(mesh, {-0.055f, 0.2f, 0.022f}, {-0.055f, kEaveHeight + 0.06f, 0.022f}, out, 0.115f, 0.026f,
      Material::kBoardWhite, 0.31f);
  Bar(mesh, {0.022f, 0.2f, -0.06f}, {0.022f, kEaveHeight, -0.06f}, {1, 0, 0}, 0.115f, 0.026f,
      Material::kBoardWhite, 0.74f);
  Bar(mesh, {-kBarnWidth + 0.055f, 0.2f, 0.022f},
      {-kBarnWidth + 0.055f, kEaveHeight + 0.06f, 0.022f}, out, 0.115f, 0.026f,
      Material::kBoardWhite, 0.52f);
  Bar(mesh, {0.022f, 0.2f, -kBarnLength + 0.06f}, {0.022f, kEaveHeight, -kBarnLength + 0.06f},
      {1, 0, 0}, 0.115f, 0.026f, Material::kBoardWhite, 0.12f);
  // Barge boards along the gable's slopes, out at the edge of the tin.
  const float middle = -kBarnWidth / 2;
  const float drop = 0.085f;
  for (const float side : {1.0f, -1.0f}) {
    const float foot = middle + side * (kBarnWidth / 2 + 0.30f);
    Bar(mesh, {foot, RoofHeight(foot) - drop, 0.265f},
        {middle - side * 0.05f, RoofHeight(middle) - drop + 0.03f, side < 0 ? 0.262f : 0.268f}, out,
        0.15f, 0.024f, Material::kBoardWhite, random.Unit());
  }
  // Rafters under the eaves, and the soffit's edge.
  for (const float side : {0.0f, -kBarnWidth}) {
    const float reach = side == 0 ? 0.30f : -0.30f;
    for (float z = 0.22f; z > -kBarnLength - 0.2f; z -= 0.82f) {
      const float inside = side - reach * 0.8f;
      Bar(mesh, {inside, RoofHeight(inside) - 0.075f, z},
          {side + reach, RoofHeight(side + reach) - 0.075f, z}, {0, 0, 1}, 0.10f, 0.05f,
          Material::kBareWood, random.Unit());
    }
  }
  for (const float z : kWindowZ) AddWindow(mesh, z, random);
}

}  // namespace tarnwick::photo
