#include <vector>

#include "mesh_shapes.h"
#include "noise.h"
#include "portable_math.h"
#include "terrain.h"
#include "yard_things.h"

namespace tarnwick::photo {
namespace {

// A log or a split of one along x; `kept` is the part of its round that is left.
void AddLog(Mesh& mesh, Vec3 centre, float length, float radius, float kept, float turn,
            Random& random) {
  const float seed = random.Unit();
  constexpr int kSides = 14;
  const auto outline = [&](int i) {
    const float a = turn + 2 * kPi * kept * static_cast<float>(i) / kSides;
    const float r = radius * (1 + 0.07f * Noise2(Cos(a) * 1.5f + seed * 30, Sin(a) * 1.5f));
    return Vec3{0, r * Sin(a), r * Cos(a)};
  };
  const Vec3 skew{0, random.Signed() * 0.01f, random.Signed() * 0.012f};
  const auto end = [&](float x, Vec3 rim) {
    return centre + Vec3{x, 0, 0} + rim + skew * (x < 0 ? -1.0f : 1.0f);
  };
  const float front = length / 2 + random.Signed() * 0.025f;
  const float back = -length / 2;
  const auto side = [&](Vec3 a, Vec3 b, Material material, float u0, float u1) {
    const bool round = material == Material::kBark;
    const Vec3 na = round ? Normalized(a) : Vec3{};
    const Vec3 nb = round ? Normalized(b) : Vec3{};
    mesh.Quad(mesh.Add({end(back, a), na, u0, 0}), mesh.Add({end(back, b), nb, u1, 0}),
              mesh.Add({end(front, b), nb, u1, length}), mesh.Add({end(front, a), na, u0, length}),
              material, seed);
  };
  const auto heart = mesh.Add({end(front, {}), {}, 0, 0});
  for (int i = 0; i < kSides; ++i) {
    const Vec3 a = outline(i);
    const Vec3 b = outline(i + 1);
    const float arc = 2 * kPi * radius * kept / kSides;
    side(a, b, Material::kBark, arc * static_cast<float>(i), arc * static_cast<float>(i + 1));
    mesh.Face(heart, mesh.Add({end(front, a), {}, a.z, a.y}),
              mesh.Add({end(front, b), {}, b.z, b.y}), Material::kLogEnd, seed);
  }
  if (kept < 0.99f) {
    side({}, outline(0), Material::kBareWood, 0, radius);
    side(outline(kSides), {}, Material::kBareWood, 0, radius);
  }
}

}  // namespace

Mesh MakeLogPile(float length) {
  Mesh mesh;
  Random random(311);
  // Course upon course, each log in the hollow between those below.
  float y = 0.07f;
  for (int course = 0; y < 0.88f; ++course) {
    const float slack = 0.10f * static_cast<float>(course);
    float z = slack * 0.5f + random.Unit() * 0.1f;
    while (z < length - slack * 0.5f - 0.05f) {
      const float radius = random.Range(0.058f, 0.098f);
      const float lot = random.Unit();
      const float kept = lot < 0.35f ? 1.0f : (lot < 0.75f ? 0.5f : 0.27f);
      const Vec3 centre{random.Signed() * 0.02f, y + random.Signed() * 0.018f, z + radius};
      const float turn = random.Unit() * 6.3f;
      AddLog(mesh, centre, 0.36f, radius, kept, turn, random);
      z += radius * (kept > 0.4f ? 1.86f : 1.45f);
    }
    y += 0.118f;
  }
  return mesh;
}

Mesh MakeBoardPile() {
  Mesh mesh;
  Random random(331);
  for (const float x : {-0.75f, 0.8f}) {
    Board sleeper =
        BoardBetween({x, 0.05f, -0.4f}, {x + 0.05f, 0.05f, 0.4f}, {0, 1, 0}, 0.11f, 0.10f);
    sleeper.seed = random.Unit();
    AddBoard(mesh, sleeper);
  }
  float y = 0.118f;
  for (int course = 0; course < 5; ++course) {
    float z = -0.36f + 0.03f * random.Unit();
    const int boards = course == 4 ? 2 : 4;
    for (int i = 0; i < boards; ++i) {
      const float width = random.Range(0.14f, 0.2f);
      const float off = random.Signed() * 0.13f;
      const float skew = random.Signed() * (course == 4 ? 0.10f : 0.02f);
      Board b =
          BoardBetween({-1.2f + off, y, z + width / 2 + skew},
                       {1.25f + off * 0.5f, y, z + width / 2 - skew}, {0, 1, 0}, width, 0.03f);
      b.seed = random.Unit();
      b.warp = 0.012f;
      // Some came off the wall and carry its paint.
      b.material = random.Unit() < 0.3f ? Material::kBoardRed : Material::kBareWood;
      b.vStart = 0.4f;
      AddBoard(mesh, b);
      z += width + random.Range(0.005f, 0.03f);
    }
    y += 0.036f;
  }
  return mesh;
}

Mesh MakeSign() {
  Mesh mesh;
  // Pressed tin: a sheet that bulges a little, with a rolled rim.
  constexpr int kNx = 24;
  constexpr int kNy = 14;
  constexpr float kHalfX = 0.47f;
  constexpr float kHalfY = 0.27f;
  const auto first = static_cast<std::uint32_t>(mesh.vertices.size());
  for (int j = 0; j <= kNy; ++j) {
    for (int i = 0; i <= kNx; ++i) {
      const float x = kHalfX * (2 * static_cast<float>(i) / kNx - 1);
      const float y = kHalfY * (2 * static_cast<float>(j) / kNy - 1);
      const bool rim = i == 0 || j == 0 || i == kNx || j == kNy;
      const float z = rim ? 0.0f : 0.014f + 0.003f * Noise2(x * 3, y * 3);
      mesh.Add({{x, y, z}, {}, x, y});
    }
  }
  for (std::uint32_t j = 0; j < kNy; ++j)
    for (std::uint32_t i = 0; i < kNx; ++i) {
      const std::uint32_t at = first + j * (kNx + 1) + i;
      mesh.Quad(at, at + 1, at + kNx + 2, at + kNx + 1, Material::kEnamel, 0.5f);
    }
  return mesh;
}

Mesh MakeFence(Vec3 from, Vec3 to) {
  Mesh mesh;
  Random random(351);
  const Vec3 along = Normalized(to - from);
  const Vec3 out = Normalized(Cross(along, {0, 1, 0}));
  const float length = Length(to - from);
  const auto foot = [&](float d) {
    Vec3 p = from + along * d;
    p.y = TerrainHeight(p.x, p.z);
    return p;
  };
  std::vector<float> posts;
  for (float d = 0; d < length; d += random.Range(2.1f, 2.5f)) posts.push_back(d);
  for (const float d : posts) {
    const Vec3 base = foot(d) - Vec3{0, 0.2f, 0};
    const Vec3 lean{random.Signed() * 0.06f, 1, random.Signed() * 0.06f};
    const float tall = random.Range(1.28f, 1.42f);
    const float r = random.Range(0.055f, 0.075f);
    const TubePoint post[6] = {{base, r},
                               {base + lean * (tall * 0.5f), r * 0.97f},
                               {base + lean * (tall * 0.96f), r * 0.93f},
                               {base + lean * (tall * 0.995f), r * 0.8f},
                               {base + lean * tall, r * 0.5f},
                               {base + lean * tall, 0.001f}};
    AddTube(mesh, post, 12, Material::kBareWood, random.Unit());
  }
  for (const float y : {0.38f, 0.70f, 1.0f}) {
    for (std::size_t i = 0; i + 1 < posts.size(); ++i) {
      if (y > 0.6f && y < 0.8f && i == 2) continue;  // one has rotted away
      const Vec3 a = foot(posts[i] - 0.12f) + Vec3{0, y + random.Signed() * 0.03f, 0} +
                     out * (0.075f + 0.01f * static_cast<float>(i % 2));
      const Vec3 b = foot(posts[i + 1] + 0.12f) + Vec3{0, y + random.Signed() * 0.03f, 0} +
                     out * (0.075f + 0.01f * static_cast<float>(i % 2));
      Board rail = BoardBetween(a, b, out, random.Range(0.085f, 0.115f), 0.032f);
      rail.seed = random.Unit();
      rail.warp = 0.02f;
      rail.steps = 10;
      AddBoard(mesh, rail);
    }
  }
  return mesh;
}

}  // namespace tarnwick::photo
