#pragma once
#include <cstdint>
#include <vector>

#include "vec3.h"

namespace tarnwick::photo {

// What a triangle is made of; see materials.h.
enum class Material : std::uint8_t {
  kBoardRed,    // wall boards with what is left of their paint; u across, v along, metres
  kBoardGreen,  // the doors
  kBoardWhite,  // trim and window frames
  kBareWood,    // fence, beams
  kRoofTin,     // corrugated sheets; u across the waves, v down the slope, metres
  kDrumPaint,   // u around 0..1, v height in metres
  kZinc,        // milk cans, bucket
  kIron,        // hinges, wheel tyre, wire
  kStone,       // field stones
  kGround,      // soil, gravel, far meadows; by position
  kBark,        // u around, v along, metres
  kLogEnd,      // u, v from the centre, metres
  kLeaf,        // tree leaves; v 0..1 from stalk to tip
  kIvy,         // the same, glossier
  kGrass,       // v 0..1 from root to tip
  kDryGrass,
  kPetal,   // meadow flowers
  kGlass,   // window panes
  kEnamel,  // the sign; u, v in metres from its centre
  kDark,    // what is behind the gaps
};

struct Vertex {
  Vec3 position;
  Vec3 normal;  // zero where the surface is flat
  float u = 0, v = 0;
};

struct Triangle {
  std::uint32_t corner[3] = {};
  Material material = Material::kDark;
  float seed = 0;  // 0..1, the same for all of one board, leaf, stone ...
};

// An indexed triangle mesh under construction. Winding is free: the tracer
// turns normals to the ray.
struct Mesh {
  std::vector<Vertex> vertices;
  std::vector<Triangle> triangles;

  std::uint32_t Add(const Vertex& vertex) {
    vertices.push_back(vertex);
    return static_cast<std::uint32_t>(vertices.size() - 1);
  }
  void Face(std::uint32_t a, std::uint32_t b, std::uint32_t c, Material material, float seed) {
    triangles.push_back({{a, b, c}, material, seed});
  }
  // a b c d in turn around the quad.
  void Quad(std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d, Material material,
            float seed) {
    Face(a, b, c, material, seed);
    Face(a, c, d, material, seed);
  }
};

}  // namespace tarnwick::photo
