#include <array>
#include <span>
#include <utility>

#include "barn.h"
#include "camera.h"
#include "mesh_shapes.h"
#include "noise.h"
#include "planting.h"
#include "portable_math.h"
#include "terrain.h"
#include "tufts.h"

namespace tarnwick::photo {
namespace {

// How deep inside the barn's walls, negative outside; metres.
float InsideBarn(float x, float z) {
  return Min(Min(-x, x + kBarnWidth), Min(-z, z + kBarnLength));
}

class Meadow {
 public:
  Meadow(Scene& scene, float detail) : scene_(scene), detail_(detail), view_(1000, 667) {}

  void Plant() {
    std::array<int, 3> lawn;
    std::array<int, 2> cropped;
    std::array<int, 3> tall;
    std::array<int, 2> thin;  // for the middle distance: fewer and wider blades
    for (std::uint32_t i = 0; i < 3; ++i) {
      lawn[i] = scene_.AddMesh(MakeTuft({40 + i, Count(430), 0.30f, 0.15f, 0.0044f, 0.16f, 3}));
      tall[i] = scene_.AddMesh(MakeTuft({50 + i, Count(130), 0.17f, 0.42f, 0.0050f, 0.24f, 4}));
    }
    for (std::uint32_t i = 0; i < 2; ++i)
      cropped[i] = scene_.AddMesh(MakeTuft({46 + i, Count(430), 0.30f, 0.08f, 0.0044f, 0.20f, 2}));
    for (std::uint32_t i = 0; i < 2; ++i)
      thin[i] = scene_.AddMesh(MakeTuft({56 + i, Count(330), 0.42f, 0.17f, 0.0085f, 0.16f, 2}));
    const int ears = scene_.AddMesh(MakeSeedHeads(61, 9, 0.55f));
    const int weed = scene_.AddMesh(MakeWeed(62, 0.42f));
    const int rosette = scene_.AddMesh(MakeWeed(63, 0.12f));
    const int daisy = scene_.AddMesh(MakeFlowers(64, 7, 0.20f, 0.3f));
    const int yellow = scene_.AddMesh(MakeFlowers(65, 6, 0.26f, 0.75f));
    const int coarse = scene_.AddMesh(MakeTuft({66, Count(420), 1.1f, 0.30f, 0.014f, 0.30f, 2}));

    Random random(81);
    const auto grow = [&](float x, float z, std::span<const int> low) {
      const float wear = TrackWear(x, z);
      if (random.Unit() < wear * 1.25f - 0.05f) return;
      const float rank = Fbm2(x * 0.55f, z * 0.55f, 3);
      const float wall = Smooth(0.75f, 0.15f, -InsideBarn(x, z)) * (1 - wear);
      const float size = (0.80f + 0.75f * rank) * (1 - 0.6f * wear) + 0.35f * wall;
      // Never scaled so small that soil shows between the tiles: where growth is
      // poor the blades themselves are short.
      if (size < 0.75f) low = cropped;
      Put(low[random.Word() % low.size()], x, z, Clamp(size, 0.85f, 1.3f), random);
      for (int i = 0; i < 4; ++i) {
        if (rank + wall * 0.75f < 0.30f + 0.40f * random.Unit()) continue;
        const float dx = random.Signed() * 0.2f;
        const float dz = random.Signed() * 0.2f;
        if (InsideBarn(x + dx, z + dz) > -0.1f) continue;
        Put(tall[random.Word() % 3], x + dx, z + dz, Clamp(size, 0.5f, 1.15f), random);
      }
    };
    // Tiles that hardly overlap: rays then meet few of them at a time.
    Scatter(0.35f, 0, 10, [&](float x, float z, float) { grow(x, z, lawn); });
    Scatter(0.50f, 10, 26, [&](float x, float z, float) { grow(x, z, thin); });
    Scatter(0.65f, 0, 30, [&](float x, float z, float) {
      const float wear = TrackWear(x, z);
      const float wall = Smooth(0.7f, 0.2f, -InsideBarn(x, z));
      const float lot = random.Unit();
      const float patch = Noise2(x * 0.4f + 7, z * 0.4f);
      if (wear > 0.5f) return;
      if (lot < 0.16f + 0.3f * wall)
        Put(weed, x, z, random.Range(0.5f, 1.0f) * (0.75f + 0.5f * wall), random);
      else if (lot < 0.38f)
        Put(ears, x, z, random.Range(0.7f, 1.1f), random);
      else if (lot < 0.55f)
        Put(rosette, x, z, random.Range(0.6f, 1.1f), random);
      else if (lot < 0.62f + 0.3f * patch)
        Put(daisy, x, z, random.Range(0.8f, 1.1f), random);
      else if (lot > 0.95f + 0.25f * patch)
        Put(yellow, x, z, random.Range(0.8f, 1.1f), random);
    });
    std::array<int, 3> stones;
    for (int& stone : stones) {
      Mesh mesh;
      AddStone(mesh, {}, {0.022f, 0.013f, 0.018f}, 0, 7, random);
      stone = scene_.AddMesh(std::move(mesh));
    }
    Scatter(0.16f, 0, 17, [&](float x, float z, float) {
      const float wear = TrackWear(x, z);
      const float size = random.Unit();
      if (wear > 0.35f && random.Unit() < 0.55f)
        Put(stones[random.Word() % 3], x, z, 0.35f + 1.5f * size * size * size, random);
    });
    // Rank growth close to the camera, out of focus in the lower corners.
    for (int i = 0; i < static_cast<int>(260 * detail_); ++i) {
      const float px = random.Unit() < 0.42f ? random.Range(-40, 260) : random.Range(640, 1040);
      const Vec3 d = view_.Direction(px, 760);
      const float away = random.Range(4.3f, 6.4f) / std::sqrt(d.x * d.x + d.z * d.z);
      const Vec3 at = view_.Position() + d * away;
      if (TrackWear(at.x, at.z) > 0.3f) continue;
      const float lot = random.Unit();
      const float size = random.Range(0.75f, 1.25f);
      Put(lot < 0.72f ? tall[random.Word() % 3] : (lot < 0.93f ? ears : daisy), at.x, at.z, size,
          random);
    }
    Scatter(0.95f, 22, 75, [&](float x, float z, float away) {
      Put(coarse, x, z, random.Range(0.6f, 1.05f) * (away < 28 ? 0.6f : 1.0f), random);
    });
  }

 private:
  [[nodiscard]] int Count(int full) const {
    return full < 8 ? full : 4 + static_cast<int>(static_cast<float>(full - 4) * detail_);
  }

  void Put(int mesh, float x, float z, float scale, Random& random) {
    const float dry = Saturate(0.5f + 0.9f * Fbm2(x * 0.23f + 3, z * 0.23f, 3));
    scene_.AddInstance(mesh,
                       {{x, TerrainHeight(x, z) - 0.01f, z},
                        random.Unit() * 6.2832f,
                        scale,
                        random.Signed() * 0.08f},
                       dry);
  }

  // Calls plant(x, z, distance) on a jittered grid, where the camera looks.
  template <typename Place>
  void Scatter(float spacing, float nearest, float farthest, Place&& plant) {
    Random random(HashWord(static_cast<std::uint32_t>(spacing * 1000)));
    const Vec3 eye = view_.Position();
    const float pitch = spacing / std::sqrt(Max(detail_, 0.05f));
    const int n = static_cast<int>(farthest / pitch);
    for (int j = -n; j <= n; ++j) {
      for (int i = -n; i <= n; ++i) {
        const float x = eye.x + (static_cast<float>(i) + random.Unit()) * pitch;
        const float z = eye.z + (static_cast<float>(j) + random.Unit()) * pitch;
        const Vec3 to = Vec3{x, TerrainHeight(x, z) + 0.1f, z} - eye;
        const float away = Length(to);
        if (away < nearest || away > farthest || InsideBarn(x, z) > -0.10f) continue;
        float px = 0;
        float py = 0;
        const float margin = 700 / (away + 0.5f) + 20;
        if (!view_.Project(to, px, py) || px < -margin || px > 1000 + margin ||
            py > 667 + 3 * margin)
          continue;
        plant(x, z, away);
      }
    }
  }

  Scene& scene_;
  const float detail_;
  const Camera view_;
};

}  // namespace

void PlantMeadow(Scene& scene, float detail) {
  Meadow(scene, detail).Plant();
}

}  // namespace tarnwick::photo
