#include <array>

#include "noise.h"
#include "planting.h"
#include "terrain.h"
#include "trees.h"

namespace tarnwick::photo {
namespace {

class Woods {
 public:
  Woods(Scene& scene, float detail) : scene_(scene), random_(207) {
    const auto leaves = [&](int full) {
      return 3 + static_cast<int>(static_cast<float>(full) * detail);
    };
    near_[0] = scene.AddMesh(MakeTree({3, 9.5f, 3.5f, 0.16f, 19, 12, 9, leaves(26), 0.085f}));
    near_[1] = scene.AddMesh(MakeTree({8, 8.0f, 3.1f, 0.10f, 17, 11, 9, leaves(26), 0.085f}));
    shrub_ = scene.AddMesh(MakeTree({15, 2.3f, 1.25f, 0.0f, 22, 11, 6, leaves(20), 0.066f}));
    for (std::uint32_t i = 0; i < 3; ++i)
      far_[i] = scene.AddMesh(MakeTree(
          {21 + i, 8.6f, 3.7f - 0.35f * static_cast<float>(i), 0.03f, 20, 9, 5, leaves(9), 0.25f}));
  }

  void Plant() {
    // The two by the barn, and one out of sight that dapples its front.
    Put(near_[0], -7.15f, -9.3f, 1.12f, 0.35f);
    Put(near_[1], 5.2f, -22.0f, 1.05f, 0.7f);
    Put(near_[1], -13.5f, -5.5f, 1.0f, 0.25f);
    Put(near_[0], 12.0f, 10.5f, 1.0f, 0.4f);
    Put(shrub_, -7.2f, -1.6f, 0.9f, 0.4f);
    Put(shrub_, 2.0f, -12.0f, 0.95f, 0.6f);
    Put(shrub_, 0.4f, -9.6f, 0.75f, 0.3f);
    // Hedges along the fields.
    Row({-80, 0, -60}, {90, 0, -75}, 44, 0.35f, 0.75f);
    Row({22, 0, -30}, {60, 0, -80}, 16, 0.3f, 0.7f);
    Row({-120, 0, -140}, {160, 0, -170}, 60, 0.5f, 1.0f);
    Row({-200, 0, -250}, {260, 0, -270}, 80, 0.7f, 1.1f);
    // The hills: woods with clearings.
    for (int i = 0; i < 9000; ++i) {
      const float z = -330 - 900 * random_.Unit();
      const float x = random_.Range(-1.1f, 0.7f) * (-z);
      if (Noise2(x * 0.006f + 5, z * 0.006f) + 0.3f * Noise2(x * 0.02f, z * 0.02f) < -0.16f)
        continue;
      const float size = random_.Range(1.0f, 1.6f);
      PutFar(x, z, size);
    }
  }

 private:
  void Put(int mesh, float x, float z, float scale, float seed) {
    scene_.AddInstance(
        mesh, {{x, TerrainHeight(x, z) - 0.05f * scale, z}, random_.Unit() * 6.2832f, scale}, seed);
  }
  void PutFar(float x, float z, float scale) {
    const int mesh = far_[random_.Word() % 3];
    const float seed = random_.Unit();
    Put(mesh, x, z, scale, seed);
  }
  void Row(Vec3 from, Vec3 to, int count, float least, float most) {
    for (int i = 0; i < count; ++i) {
      const float t =
          (static_cast<float>(i) + random_.Signed() * 0.45f) / static_cast<float>(count);
      const Vec3 p = Mix(from, to, t) + Vec3{random_.Signed() * 2, 0, random_.Signed() * 3};
      const float size = random_.Unit();
      PutFar(p.x, p.z, Mix(least, most, size * size));
    }
  }

  Scene& scene_;
  Random random_;
  std::array<int, 2> near_{};
  std::array<int, 3> far_{};
  int shrub_ = 0;
};

}  // namespace

void PlantTrees(Scene& scene, float detail) {
  Woods(scene, detail).Plant();
}

}  // namespace tarnwick::photo
