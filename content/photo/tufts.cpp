#include "tufts.h"

#include "mesh_shapes.h"
#include "noise.h"
#include "portable_math.h"

namespace tarnwick::photo {
namespace {

Vec3 InDisc(Random& random, float radius) {
  const float r = radius * std::sqrt(random.Unit());
  const float a = random.Unit() * 2 * kPi;
  return {r * Cos(a), 0, r * Sin(a)};
}

struct Stem {
  Vec3 root, lean;  // lean: how far the tip is off the upright, metres
  float height, width, seed;
  Material material;
  int pieces;
};

// A flat, tapering ribbon that bends over; returns its tip.
Vec3 AddRibbon(Mesh& mesh, const Stem& s, Random& random) {
  const float turn = random.Unit() * 2 * kPi;
  const Vec3 side{Cos(turn), 0, Sin(turn)};
  const auto at = [&](float t) {
    return s.root + s.lean * (t * t) + Vec3{0, s.height * t * (1 - 0.12f * t), 0};
  };
  std::uint32_t before[2] = {};
  for (int i = 0; i < s.pieces; ++i) {
    const float t = static_cast<float>(i) / static_cast<float>(s.pieces);
    const float half = s.width * 0.5f * (1 - 0.75f * t * t);
    const auto left = mesh.Add({at(t) - side * half, {}, -1, t});
    const auto right = mesh.Add({at(t) + side * half, {}, 1, t});
    if (i > 0) mesh.Quad(before[0], before[1], right, left, s.material, s.seed);
    before[0] = left;
    before[1] = right;
  }
  const auto tip = mesh.Add({at(1), {}, 0, 1});
  mesh.Face(before[0], before[1], tip, s.material, s.seed);
  return at(1);
}

}  // namespace

Mesh MakeTuft(const TuftPlan& plan) {
  Random random(plan.seed);
  Mesh mesh;
  const Vec3 wind{0.22f, 0, 0.06f};
  for (int i = 0; i < plan.blades; ++i) {
    Stem s;
    s.root = InDisc(random, plan.radius) + Vec3{0, -0.02f, 0};
    const float size = random.Unit();
    s.height = plan.height * (0.30f + 0.70f * size * size) + 0.02f;
    s.lean = (InDisc(random, 0.75f) + wind) * s.height;
    s.width = plan.width * random.Range(0.6f, 1.3f);
    s.seed = random.Unit();
    s.material = random.Unit() < plan.dry ? Material::kDryGrass : Material::kGrass;
    s.pieces = plan.pieces;
    AddRibbon(mesh, s, random);
  }
  return mesh;
}

Mesh MakeSeedHeads(std::uint32_t seed, int stalks, float height) {
  Random random(seed);
  Mesh mesh;
  for (int i = 0; i < stalks; ++i) {
    Stem s;
    s.root = InDisc(random, 0.22f);
    s.height = height * random.Range(0.6f, 1.1f);
    s.lean = (InDisc(random, 0.35f) + Vec3{0.12f, 0, 0.03f}) * s.height;
    s.width = 0.0032f;
    s.seed = random.Unit();
    s.material = Material::kDryGrass;
    s.pieces = 4;
    const Vec3 tip = AddRibbon(mesh, s, random);
    const Vec3 heading = Normalized(s.lean * 2 + Vec3{0, s.height * 0.75f, 0});
    for (int k = 0; k < 22; ++k) {
      Vec3 a;
      Vec3 b;
      Basis(heading, a, b);
      const float turn = 2.4f * static_cast<float>(k);
      Blade grain;
      grain.base = tip - heading * (0.10f * static_cast<float>(k) / 22);
      grain.along = Normalized(heading + (a * Cos(turn) + b * Sin(turn)) * 0.55f);
      grain.side = Normalized(Cross(grain.along, a + b));
      grain.length = random.Range(0.012f, 0.022f);
      grain.width = 0.0055f;
      grain.material = Material::kDryGrass;
      grain.seed = random.Unit();
      AddBlade(mesh, grain);
    }
  }
  return mesh;
}

Mesh MakeWeed(std::uint32_t seed, float height) {
  Random random(seed);
  Mesh mesh;
  const auto leaf = [&](Vec3 base, Vec3 along, float length) {
    Blade blade;
    blade.base = base;
    blade.along = Normalized(along);
    blade.side =
        Normalized(Cross(blade.along, Vec3{random.Signed() * 0.3f, 1, random.Signed() * 0.3f}));
    blade.length = length;
    blade.width = length * random.Range(0.34f, 0.46f);
    blade.fold = random.Range(0.2f, 0.6f);
    blade.curl = random.Range(0.25f, 0.6f);
    blade.material = Material::kLeaf;
    blade.seed = random.Range(0.2f, 0.95f);
    blade.fine = true;
    AddBlade(mesh, blade);
  };
  for (int i = 0; i < 9; ++i) {
    const float turn = 2.4f * static_cast<float>(i) + random.Unit();
    const Vec3 along{Cos(turn), random.Range(0.35f, 1.0f), Sin(turn)};
    leaf({0, 0, 0}, along, random.Range(0.12f, 0.22f));
  }
  const int stems = height > 0.3f ? 4 : 1;
  for (int k = 0; k < stems; ++k) {
    const Vec3 root = InDisc(random, 0.09f);
    const Vec3 lean = InDisc(random, 0.16f);
    const float tall = height * random.Range(0.7f, 1.1f);
    const TubePoint stem[3] = {{root, 0.005f},
                               {root + lean * 0.3f + Vec3{0, tall * 0.5f, 0}, 0.004f},
                               {root + lean + Vec3{0, tall, 0}, 0.002f}};
    AddTube(mesh, stem, 4, Material::kGrass, 0.5f);
    const int leaves = static_cast<int>(tall * 46);
    for (int i = 0; i < leaves; ++i) {
      const float t = (static_cast<float>(i) + 1) / static_cast<float>(leaves);
      const float turn = 1.65f * static_cast<float>(i) + random.Signed() * 0.3f;
      leaf(root + lean * (t * t) + Vec3{0, tall * t, 0}, {Cos(turn), 0.25f + 0.5f * t, Sin(turn)},
           Mix(0.12f, 0.05f, t) * random.Range(0.8f, 1.2f));
    }
  }
  return mesh;
}

Mesh MakeFlowers(std::uint32_t seed, int count, float height, float kind) {
  Random random(seed);
  Mesh mesh;
  for (int i = 0; i < count; ++i) {
    Stem s;
    s.root = InDisc(random, 0.35f);
    s.height = height * random.Range(0.6f, 1.1f);
    s.lean = InDisc(random, 0.25f) * s.height;
    s.width = 0.003f;
    s.seed = 0.4f;
    s.material = Material::kGrass;
    s.pieces = 3;
    const Vec3 tip = AddRibbon(mesh, s, random);
    const Vec3 face =
        Normalized(Vec3{random.Signed() * 0.5f - 0.2f, 1, random.Signed() * 0.5f + 0.25f});
    Vec3 a;
    Vec3 b;
    Basis(face, a, b);
    for (int k = 0; k < 12; ++k) {
      const float turn = 2 * kPi * static_cast<float>(k) / 12;
      Blade petal;
      petal.base = tip;
      petal.along = Normalized(a * Cos(turn) + b * Sin(turn) + face * random.Range(-0.1f, 0.2f));
      petal.side = Normalized(Cross(petal.along, face));
      petal.length = 0.017f;
      petal.width = 0.009f;
      petal.material = Material::kPetal;
      petal.seed = kind;
      AddBlade(mesh, petal);
    }
    // The yellow heart.
    const TubePoint heart[3] = {{tip - face * 0.001f, 0.0055f},
                                {tip + face * 0.003f, 0.0048f},
                                {tip + face * 0.0045f, 0.0005f}};
    AddTube(mesh, heart, 6, Material::kPetal, 0.75f);
  }
  return mesh;
}

}  // namespace tarnwick::photo
