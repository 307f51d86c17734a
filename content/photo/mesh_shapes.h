#pragma once
#include <span>

#include "mesh.h"
#include "noise.h"

namespace tarnwick::photo {

// One sawn board. It starts at `origin`, the middle of its lower end, and runs
// `length` metres along `along`; `outward` is the side that is looked at. The
// three directions are unit and at right angles.
struct Board {
  Vec3 origin, across, along, outward;
  float width = 0.18f, length = 2, thickness = 0.022f;
  float warp = 0.004f;  // how far it bends outward and wavers at its edges
  float vStart = 0;     // v at the lower end
  Material material = Material::kBareWood;
  float seed = 0;
  int steps = 8;       // pieces along the length
  float topSlant = 0;  // the upper end is sawn off at this tangent
};
void AddBoard(Mesh& mesh, const Board& board);

// A straight board from one point to another, `outward` roughly.
[[nodiscard]] Board BoardBetween(Vec3 from, Vec3 to, Vec3 outward, float width, float thickness);

// A round stick through the points; u around and v along in metres.
struct TubePoint {
  Vec3 centre;
  float radius = 0;
};
void AddTube(Mesh& mesh, std::span<const TubePoint> path, int sides, Material material, float seed);

// A profile (radius, height) turned about the y axis; u 0..1 around, v height.
// Bends of more than about 50 degrees stay sharp.
struct ProfilePoint {
  float radius = 0, height = 0;
};
void AddLathe(Mesh& mesh, std::span<const ProfilePoint> profile, int sides, Material material,
              float seed);

// A rounded lump of the given half sizes, dented by noise: a field stone.
void AddStone(Mesh& mesh, Vec3 centre, Vec3 halfSize, float turn, int detail, Random& random);

// A thin leaf of two or four triangles, folded along its rib: from the stalk at
// `base` along `along`, `side` across, both unit; `curl` bends its tip down.
struct Blade {
  Vec3 base, along, side;
  float length = 0.08f, width = 0.05f, fold = 0.3f, curl = 0.2f;
  Material material = Material::kLeaf;
  float seed = 0;
  bool fine = false;
};
void AddBlade(Mesh& mesh, const Blade& blade);

}  // namespace tarnwick::photo
