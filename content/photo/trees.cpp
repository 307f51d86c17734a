#include "trees.h"

#include <vector>

#include "mesh_shapes.h"
#include "noise.h"
#include "portable_math.h"

namespace tarnwick::photo {
namespace {

class Grower {
 public:
  explicit Grower(const TreePlan& plan) : plan_(plan), random_(plan.seed) {}

  Mesh Grow() {
    const float height = plan_.height * 0.80f;
    const auto trunk =
        Stick({0, -0.15f, 0}, Normalized({random_.Signed() * 0.06f, 1, random_.Signed() * 0.06f}),
              height, plan_.height * 0.019f, 9, 0.05f, 0.04f);
    // The foot widens into the roots.
    auto flared = trunk;
    flared[0].radius *= 1.7f;
    flared[1].radius *= 1.05f;
    AddTube(mesh_, flared, 12, Material::kBark, random_.Unit());
    float turn = random_.Unit() * 6;
    for (int i = 0; i < plan_.limbs; ++i) {
      const float t =
          Mix(plan_.bareTrunk, 1,
              (static_cast<float>(i) + random_.Unit() * 0.8f) / static_cast<float>(plan_.limbs));
      turn += 2.39996f + random_.Signed() * 0.35f;
      const float share = (t - plan_.bareTrunk) / (1 - plan_.bareTrunk);
      // Wide below the middle, rounded off above.
      const float reach = plan_.spread * std::sqrt(Max(1.06f - share * share, 0.05f)) *
                          Mix(0.72f, 1, Smooth(0, 0.25f, share)) * random_.Range(0.72f, 1.1f);
      const float lift = Mix(0.28f, 1.5f, share * share) + random_.Signed() * 0.15f;
      Limb(Along(trunk, t), Normalized({Cos(turn), lift, Sin(turn)}), reach);
    }
    return std::move(mesh_);
  }

 private:
  using Path = std::vector<TubePoint>;

  Path Stick(Vec3 from, Vec3 direction, float length, float radius, int pieces, float wander,
             float rise) {
    Path path{{from, radius}};
    const float step = length / static_cast<float>(pieces);
    for (int i = 1; i <= pieces; ++i) {
      direction = Normalized(
          direction + Vec3{random_.Signed(), random_.Signed(), random_.Signed()} * wander * 2 +
          Vec3{0, rise, 0});
      from += direction * step;
      const float t = static_cast<float>(i) / static_cast<float>(pieces);
      path.push_back({from, radius * Mix(1, 0.22f, t)});
    }
    return path;
  }

  static TubePoint Along(const Path& path, float t) {
    const float at = t * static_cast<float>(path.size() - 1);
    const auto i = static_cast<std::size_t>(Min(at, static_cast<float>(path.size()) - 1.001f));
    const float f = at - static_cast<float>(i);
    return {Mix(path[i].centre, path[i + 1].centre, f), Mix(path[i].radius, path[i + 1].radius, f)};
  }
  static Vec3 Heading(const Path& path, float t) {
    const auto i = static_cast<std::size_t>(t * (static_cast<float>(path.size()) - 1.001f));
    return Normalized(path[i + 1].centre - path[i].centre);
  }
  // A direction that leaves `heading` at `slant` (tangent), turned about it.
  static Vec3 Fork(Vec3 heading, float turn, float slant) {
    Vec3 a;
    Vec3 b;
    Basis(heading, a, b);
    return Normalized(heading + (a * Cos(turn) + b * Sin(turn)) * slant);
  }

  void Limb(const TubePoint& root, Vec3 direction, float length) {
    const float radius = Min(root.radius * 0.62f, length * 0.021f);
    const Path path = Stick(root.centre, direction, length, radius, 7, 0.10f, 0.035f);
    AddTube(mesh_, path, 6, Material::kBark, random_.Unit());
    float turn = random_.Unit() * 6;
    for (int i = 0; i < plan_.branches; ++i) {
      const float t = Mix(
          0.22f, 1, (static_cast<float>(i) + random_.Unit()) / static_cast<float>(plan_.branches));
      turn += 2.39996f + random_.Signed() * 0.5f;
      const float slant = random_.Range(0.6f, 1.2f);
      const float share = Mix(0.46f, 0.22f, t) * random_.Range(0.75f, 1.25f);
      Branch(Along(path, t), Fork(Heading(path, t), turn, slant), length * share);
    }
  }

  void Branch(const TubePoint& root, Vec3 direction, float length) {
    const Path path =
        Stick(root.centre, direction, length, Min(root.radius * 0.6f, 0.018f), 5, 0.14f, 0.05f);
    AddTube(mesh_, path, 4, Material::kBark, random_.Unit());
    float turn = random_.Unit() * 6;
    for (int i = 0; i < plan_.twigs; ++i) {
      const float t =
          Mix(0.15f, 1, (static_cast<float>(i) + random_.Unit()) / static_cast<float>(plan_.twigs));
      turn += 2.39996f;
      const float slant = random_.Range(0.5f, 1.3f);
      const float reach = random_.Range(0.22f, 0.50f);
      Twig(Along(path, t).centre, Fork(Heading(path, t), turn, slant), reach);
    }
  }

  void Twig(Vec3 from, Vec3 direction, float length) {
    const Path path = Stick(from, direction, length, 0.0045f, 3, 0.16f, -0.02f);
    AddTube(mesh_, path, 3, Material::kBark, 0.5f);
    // Leaves of one twig are of an age.
    const float tone = random_.Unit();
    for (int i = 0; i < plan_.leaves; ++i) {
      const float t =
          Mix(0.1f, 1, (static_cast<float>(i) + random_.Unit()) / static_cast<float>(plan_.leaves));
      const Vec3 heading = Heading(path, t);
      Blade leaf;
      leaf.base = Along(path, t).centre +
                  Vec3{random_.Signed(), random_.Signed(), random_.Signed()} * 0.035f;
      const float around = random_.Unit() * 6.3f;
      const float slant = random_.Range(0.7f, 1.6f);
      leaf.along = Normalized(Fork(heading, around, slant) + Vec3{0, -0.30f, 0});
      // The blade faces the light, more or less.
      const Vec3 facing = Normalized(Vec3{random_.Signed() * 0.8f, 1, random_.Signed() * 0.8f});
      leaf.side = Normalized(Cross(leaf.along, facing));
      leaf.length = plan_.leafLength * random_.Range(0.65f, 1.2f);
      leaf.width = leaf.length * random_.Range(0.5f, 0.68f);
      leaf.fold = random_.Range(0.1f, 0.5f);
      leaf.curl = random_.Range(0.0f, 0.3f);
      leaf.seed = Saturate(0.45f * tone + 0.55f * random_.Unit());
      AddBlade(mesh_, leaf);
    }
  }

  const TreePlan plan_;
  Random random_;
  Mesh mesh_;
};

}  // namespace

Mesh MakeTree(const TreePlan& plan) {
  return Grower(plan).Grow();
}

}  // namespace tarnwick::photo
