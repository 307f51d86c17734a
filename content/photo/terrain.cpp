#include "terrain.h"

#include <vector>

#include "noise.h"

namespace tarnwick::photo {

float TerrainHeight(float x, float z) {
  const float away = Length({x - 1, 0, z - 2});
  const float yard = 0.035f * Fbm2(x * 0.45f, z * 0.45f, 3) - 0.05f * TrackWear(x, z);
  const float roll = Smooth(12, 70, away) * (1.6f * Fbm2(x * 0.02f, z * 0.02f, 3) + 0.9f);
  // The land climbs behind the barn, then stands up in wooded hills.
  const float behind = Max(-z - 30, 0);
  const float rise =
      Smooth(0, 260, behind) * 7 +
      Smooth(220, 900, behind) * (38 + 46 * Fbm2(x * 0.0026f + 2.2f, z * 0.0026f, 4));
  return yard + roll + rise;
}

float TrackWear(float x, float z) {
  // From the doors straight out, then off to the right of the camera.
  const float bend = z < 1.5f ? 0.0f : 0.055f * (z - 1.5f) * (z - 1.5f);
  const float middle = -2.6f + bend;
  const float d = x - middle;
  const float side = d < 0 ? -d : d;
  const float ragged = 0.22f * Fbm2(x * 1.1f, z * 1.1f, 4);
  const float ruts = Smooth(0.55f, 0.18f, (side < 0.72f ? 0.72f - side : side - 0.72f) + ragged);
  const float apron = Smooth(2.1f, 0.7f, Length({d * 0.85f, 0, z * 0.9f}) + 2.2f * ragged);
  const float open = z > -0.4f && z < 30 ? 1.0f : 0.0f;
  return open * Max(ruts * Smooth(0, 1.5f, z), apron);
}

Mesh TerrainMesh() {
  // Rows and columns at distances that grow away from the camera.
  std::vector<float> step;
  for (float d = 0; d < 1800; d += 0.10f + d * 0.035f) step.push_back(d);
  std::vector<float> line;
  for (std::size_t i = step.size(); i-- > 1;) line.push_back(-step[i]);
  line.insert(line.end(), step.begin(), step.end());

  Mesh mesh;
  const auto n = static_cast<std::uint32_t>(line.size());
  for (const float dz : line) {
    for (const float dx : line) {
      const float x = dx + 2;
      const float z = dz + 3;
      const float e = 0.05f;
      const float h = TerrainHeight(x, z);
      const Vec3 normal{(h - TerrainHeight(x + e, z)) / e, 1, (h - TerrainHeight(x, z + e)) / e};
      mesh.Add({{x, h, z}, Normalized(normal), x, z});
    }
  }
  for (std::uint32_t j = 0; j + 1 < n; ++j)
    for (std::uint32_t i = 0; i + 1 < n; ++i)
      mesh.Quad(j * n + i, j * n + i + 1, (j + 1) * n + i + 1, (j + 1) * n + i, Material::kGround,
                0.5f);
  return mesh;
}

}  // namespace tarnwick::photo
