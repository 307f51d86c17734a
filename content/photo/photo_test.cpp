#include <gtest/gtest.h>

#include <cmath>

#include "develop.h"
#include "noise.h"
#include "portable_math.h"
#include "render_photo.h"
#include "scene.h"

namespace tarnwick::photo {
namespace {

// A small, sparsely grown photograph; quick enough for a sanitizer.
PhotoOptions Small(int threads) {
  PhotoOptions options;
  options.width = 96;
  options.height = 64;
  options.samples = 2;
  options.threads = threads;
  options.detail = 0.04f;
  return options;
}

struct Mean {
  double red, green, blue;
};

// Over the part of the picture from (x0, y0) to (x1, y1), in hundredths.
Mean Over(const std::vector<std::uint8_t>& bytes, int x0, int y0, int x1, int y1) {
  double sum[3] = {};
  int count = 0;
  for (int y = 64 * y0 / 100; y < 64 * y1 / 100; ++y) {
    for (int x = 96 * x0 / 100; x < 96 * x1 / 100; ++x) {
      for (int c = 0; c < 3; ++c) sum[c] += bytes[static_cast<std::size_t>((y * 96 + x) * 3 + c)];
      ++count;
    }
  }
  return {sum[0] / count, sum[1] / count, sum[2] / count};
}

TEST(Photo, SameBytesForAnyThreadsAndEachPartInItsLight) {
  const auto one = RenderPhoto(Small(1));
  ASSERT_EQ(one.size(), 96u * 64u * 3u);
  EXPECT_EQ(one, RenderPhoto(Small(3)));

  const Mean sky = Over(one, 60, 2, 95, 15);
  EXPECT_GT(sky.blue, 120);
  const Mean wall = Over(one, 51, 50, 55, 65);  // under the eaves, in the sun
  EXPECT_GT(wall.red, wall.green * 1.25);
  EXPECT_LT(wall.red, 230);
  const Mean door = Over(one, 28, 55, 36, 70);
  EXPECT_GT(door.green, door.red);
  const Mean grass = Over(one, 45, 85, 95, 98);
  EXPECT_GT(grass.green, grass.blue * 1.2);
  EXPECT_GT(grass.green, 25);
}

TEST(Photo, NearestHitEqualsTheOneFoundWithoutATree) {
  Random random(5);
  const auto point = [&](float size) {
    const float x = random.Signed() * size;
    const float y = random.Signed() * size;
    return Vec3{x, y, random.Signed() * size};
  };
  Mesh mesh;
  for (int i = 0; i < 300; ++i) {
    const Vec3 a = point(3);
    const auto v = mesh.Add({a, {}, 0, 0});
    mesh.Add({a + point(0.6f), {}, 1, 0});
    mesh.Add({a + point(0.6f), {}, 0, 1});
    mesh.Face(v, v + 1, v + 2, Material::kStone, 0);
  }
  Scene scene;
  const int shape = scene.AddMesh(mesh);
  const Placement places[2] = {{{0, 0, 0}, 0, 1, 0}, {{2, 1, -1}, 0.7f, 1.6f, 0.3f}};
  for (const Placement& place : places) scene.AddInstance(shape, place, 0);
  scene.Finish();

  int hits = 0;
  for (int i = 0; i < 400; ++i) {
    const Vec3 from = point(8);
    const Vec3 to = point(2);
    const Vec3 d = Normalized(to - from);
    double want = 1e30;
    for (const Placement& place : places) {
      const Affine world = ToWorld(place);
      for (const Triangle& t : mesh.triangles) {
        Vec3 p[3];
        for (int k = 0; k < 3; ++k) p[k] = world.Point(mesh.vertices[t.corner[k]].position);
        // The plane's crossing, kept if it is on the inner side of all three edges.
        const Vec3 n = Cross(p[1] - p[0], p[2] - p[0]);
        const double distance = static_cast<double>(Dot(p[0] - from, n)) / Dot(d, n);
        if (!(distance > 0)) continue;
        const Vec3 at = from + d * static_cast<float>(distance);
        bool inside = true;
        for (int k = 0; k < 3; ++k)
          inside = inside && Dot(Cross(p[(k + 1) % 3] - p[k], at - p[k]), n) >= 0;
        if (inside && distance < want) want = distance;
      }
    }
    Hit hit;
    const bool found = scene.Nearest({from, d, 1e30f}, hit);
    EXPECT_EQ(found, want < 1e30) << i;
    EXPECT_EQ(scene.Blocked({from, d, 1e30f}), found) << i;
    if (!found || want >= 1e30) continue;
    ++hits;
    EXPECT_NEAR(hit.distance, want, 1e-3) << i;
    EXPECT_FALSE(scene.Blocked({from, d, static_cast<float>(want) * 0.999f})) << i;
  }
  EXPECT_GT(hits, 100);
}

TEST(Photo, OwnFunctionsFollowTheRealOnes) {
  for (double x = -40; x < 40; x += 0.37) {
    const auto f = static_cast<float>(x);
    EXPECT_NEAR(Sin(f), std::sin(static_cast<double>(f)), 3e-7) << x;
    EXPECT_NEAR(Cos(f), std::cos(static_cast<double>(f)), 4e-6) << x;
    EXPECT_NEAR(Exp2(f) / std::exp2(static_cast<double>(f)), 1, 1e-6) << x;
  }
  for (const float x : {1e-6f, 0.003f, 0.18f, 0.99f, 1.0f, 1.42f, 7.0f, 3000.0f})
    EXPECT_NEAR(Pow(x, 0.4167f) / std::pow(static_cast<double>(x), 0.4167), 1, 3e-6) << x;
  EXPECT_EQ(Pow(0, 2), 0);
}

TEST(Photo, FilmCurveRisesFromBlackToWhite) {
  EXPECT_EQ(FilmCurve(0), 0);
  float before = 0;
  for (float x = 0.001f; x < 20; x *= 1.3f) {
    const float now = FilmCurve(x);
    EXPECT_TRUE(now > before || now == 1) << x;
    EXPECT_LE(now, 1) << x;
    before = now;
  }
  EXPECT_GT(before, 0.95f);
}

}  // namespace
}  // namespace tarnwick::photo
