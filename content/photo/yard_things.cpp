#include "yard_things.h"

#include <vector>

#include "mesh_shapes.h"
#include "noise.h"
#include "portable_math.h"

namespace tarnwick::photo {

Mesh MakeDrum() {
  std::vector<ProfilePoint> profile{{0.0f, 0.012f}, {0.275f, 0.012f}, {0.278f, 0.004f},
                                    {0.284f, 0.0f}, {0.290f, 0.004f}, {0.290f, 0.012f}};
  const auto rib = [&](float y) {
    for (int i = -4; i <= 4; ++i) {
      const float t = static_cast<float>(i) / 4;
      profile.push_back({0.286f + 0.010f * (1 - t * t) * (1 - t * t), y + t * 0.024f});
    }
  };
  profile.push_back({0.286f, 0.03f});
  rib(0.29f);
  rib(0.585f);
  for (const ProfilePoint p : {ProfilePoint{0.286f, 0.86f},
                               {0.290f, 0.868f},
                               {0.290f, 0.878f},
                               {0.285f, 0.883f},
                               {0.279f, 0.880f},
                               {0.276f, 0.866f},
                               {0.0f, 0.864f}})
    profile.push_back(p);
  Mesh mesh;
  AddLathe(mesh, profile, 72, Material::kDrumPaint, 0.37f);
  // A dent: the drum has been dropped once.
  for (Vertex& v : mesh.vertices) {
    const float d = Length(v.position - Vec3{0.20f, 0.44f, 0.24f});
    const float push = 0.022f * Smooth(0.20f, 0.0f, d);
    v.position = v.position * Vec3{1 - push * 2, 1, 1 - push * 2};
    const float warp = 0.003f * Noise3(v.position * 5);
    v.position += v.normal * (v.position.y > 0.05f && v.position.y < 0.85f ? warp : 0.0f);
  }
  for (const float r : {0.15f, -0.19f}) {
    const TubePoint bung[4] = {{{r, 0.862f, 0.04f}, 0.033f},
                               {{r, 0.876f, 0.04f}, 0.033f},
                               {{r, 0.879f, 0.04f}, 0.029f},
                               {{r, 0.879f, 0.04f}, 0.001f}};
    AddTube(mesh, bung, 14, Material::kIron, 0.4f);
  }
  return mesh;
}

Mesh MakeMilkCan() {
  Mesh mesh;
  const std::vector<ProfilePoint> body{
      {0.0f, 0.02f},    {0.160f, 0.02f},  {0.163f, 0.0f},   {0.170f, 0.0f},   {0.170f, 0.035f},
      {0.166f, 0.04f},  {0.166f, 0.10f},  {0.169f, 0.105f}, {0.169f, 0.118f}, {0.166f, 0.123f},
      {0.166f, 0.36f},  {0.169f, 0.365f}, {0.169f, 0.378f}, {0.165f, 0.384f}, {0.155f, 0.42f},
      {0.135f, 0.455f}, {0.112f, 0.48f},  {0.103f, 0.50f},  {0.101f, 0.56f},  {0.108f, 0.575f},
      {0.112f, 0.585f}, {0.108f, 0.59f}};
  AddLathe(mesh, body, 56, Material::kZinc, 0.2f);
  const std::vector<ProfilePoint> lid{
      {0.106f, 0.586f}, {0.116f, 0.590f}, {0.118f, 0.603f}, {0.112f, 0.610f}, {0.085f, 0.613f},
      {0.078f, 0.604f}, {0.040f, 0.603f}, {0.034f, 0.610f}, {0.030f, 0.628f}, {0.0f, 0.632f}};
  AddLathe(mesh, lid, 48, Material::kZinc, 0.8f);
  for (const float side : {-1.0f, 1.0f}) {
    std::vector<TubePoint> handle;
    for (int i = 0; i <= 10; ++i) {
      const float t = static_cast<float>(i) / 10 * kPi;
      handle.push_back(
          {{side * (0.118f + 0.058f * Sin(t)), 0.46f + 0.055f * Cos(t) + 0.02f, 0}, 0.0075f});
    }
    AddTube(mesh, handle, 8, Material::kZinc, 0.5f);
  }
  return mesh;
}

Mesh MakeBucket() {
  Mesh mesh;
  const std::vector<ProfilePoint> body{
      {0.0f, 0.022f},   {0.098f, 0.02f},  {0.100f, 0.0f},   {0.104f, 0.0f},   {0.108f, 0.03f},
      {0.120f, 0.14f},  {0.122f, 0.145f}, {0.122f, 0.155f}, {0.1205f, 0.16f}, {0.134f, 0.262f},
      {0.140f, 0.268f}, {0.141f, 0.275f}, {0.136f, 0.279f}, {0.131f, 0.275f}, {0.129f, 0.26f},
      {0.104f, 0.04f},  {0.0f, 0.03f}};
  AddLathe(mesh, body, 48, Material::kZinc, 0.6f);
  std::vector<TubePoint> bail;
  for (int i = 0; i <= 14; ++i) {
    const float t = static_cast<float>(i) / 14 * kPi;
    // Fallen to one side.
    bail.push_back({{0.139f * Cos(t), 0.262f + 0.045f * Sin(t), 0.139f * Sin(t)}, 0.0032f});
  }
  AddTube(mesh, bail, 6, Material::kIron, 0.5f);
  return mesh;
}

Mesh MakeCartWheel() {
  Mesh mesh;
  constexpr float kRadius = 0.55f;
  const auto rim = [](float turn, float r, float x) {
    return Vec3{r * Cos(turn), kRadius + r * Sin(turn), x};
  };
  // Felloes of wood in six pieces under an iron tyre.
  const auto band = [&](float inner, float outer, float half, Material material) {
    constexpr int kPieces = 72;
    std::uint32_t before[4] = {};
    for (int i = 0; i <= kPieces; ++i) {
      const float turn = 2 * kPi * static_cast<float>(i) / kPieces;
      const float v = turn * kRadius;
      const int felloe = i * 6 / kPieces;
      const float seed = static_cast<float>(felloe) * 0.17f;
      const std::uint32_t now[4] = {mesh.Add({rim(turn, inner, -half), {}, 0, v}),
                                    mesh.Add({rim(turn, outer, -half), {}, 0.06f, v}),
                                    mesh.Add({rim(turn, outer, half), {}, 0.12f, v}),
                                    mesh.Add({rim(turn, inner, half), {}, 0.18f, v})};
      for (std::size_t k = 0; i > 0 && k < 4; ++k)
        mesh.Quad(before[k], before[(k + 1) % 4], now[(k + 1) % 4], now[k], material, seed);
      for (std::size_t k = 0; k < 4; ++k) before[k] = now[k];
    }
  };
  band(0.462f, 0.538f, 0.028f, Material::kBareWood);
  band(0.537f, 0.548f, 0.030f, Material::kIron);
  for (int i = 0; i < 12; ++i) {
    const float turn = 2 * kPi * (static_cast<float>(i) + 0.37f) / 12;
    const TubePoint spoke[4] = {{rim(turn, 0.07f, 0.012f), 0.021f},
                                {rim(turn, 0.16f, 0.01f), 0.017f},
                                {rim(turn, 0.35f, 0.004f), 0.014f},
                                {rim(turn, 0.47f, 0), 0.017f}};
    AddTube(mesh, spoke, 8, Material::kBareWood, static_cast<float>(i) * 0.077f);
  }
  const auto axle = [](float z, float r) { return TubePoint{{0, kRadius, z}, r}; };
  const TubePoint hub[8] = {axle(-0.110f, 0.001f), axle(-0.109f, 0.062f), axle(-0.085f, 0.066f),
                            axle(-0.04f, 0.088f),  axle(0.06f, 0.088f),   axle(0.12f, 0.066f),
                            axle(0.149f, 0.060f),  axle(0.15f, 0.001f)};
  AddTube(mesh, hub, 20, Material::kBareWood, 0.41f);
  for (const float z : {-0.09f, 0.125f}) {
    const TubePoint ring[4] = {axle(z - 0.014f, 0.060f), axle(z - 0.013f, 0.070f),
                               axle(z + 0.013f, 0.070f), axle(z + 0.014f, 0.060f)};
    AddTube(mesh, ring, 20, Material::kIron, 0.3f);
  }
  return mesh;
}

Mesh MakeLadder(float length) {
  Mesh mesh;
  Random random(301);
  for (const float x : {-0.19f, 0.19f}) {
    Board rail = BoardBetween({x, 0, 0}, {x * 0.86f, length, 0}, {0, 0, 1}, 0.036f, 0.058f);
    rail.seed = random.Unit();
    rail.steps = 14;
    rail.warp = 0.006f;
    AddBoard(mesh, rail);
  }
  for (float y = 0.22f; y < length - 0.1f; y += 0.285f) {
    const float half = 0.20f * (1 - 0.14f * y / length);
    const float tilt = random.Signed() * 0.006f;
    const TubePoint rung[3] = {
        {{-half, y - tilt, 0}, 0.013f}, {{0, y, 0}, 0.0155f}, {{half, y + tilt, 0}, 0.013f}};
    AddTube(mesh, rung, 9, Material::kBareWood, random.Unit());
  }
  return mesh;
}

}  // namespace tarnwick::photo
