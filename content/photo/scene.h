#pragma once
#include <cstdint>
#include <vector>

#include "bvh.h"
#include "mesh.h"

namespace tarnwick::photo {

// A placing of a mesh: scaled, tilted, turned about the upright, then moved.
struct Placement {
  Vec3 position;
  float turn = 0;   // radians about y
  float scale = 1;  // the same in all directions
  float tilt = 0;   // radians about x, before the turn
};

// The rows of a linear map and a shift.
struct Affine {
  Vec3 row[3];
  Vec3 shift;
  [[nodiscard]] Vec3 Direction(Vec3 v) const {
    return {Dot(row[0], v), Dot(row[1], v), Dot(row[2], v)};
  }
  [[nodiscard]] Vec3 Point(Vec3 p) const { return Direction(p) + shift; }
};
[[nodiscard]] Affine ToWorld(const Placement& placement);

// Where a ray ends.
struct Hit {
  float distance = 0;  // in lengths of the ray's direction
  std::uint32_t instance = 0;
  std::uint32_t triangle = 0;
  float b = 0, c = 0;  // weights of the triangle's second and third corner
};

// All there is to see: meshes, each placed any number of times.
//
// Threads  after Finish() everything is read only and may be used by many.
class Scene {
 public:
  // Takes the mesh and returns its number.
  int AddMesh(Mesh mesh);
  // `seed` (0..1) varies colours from one instance to the next.
  void AddInstance(int mesh, const Placement& placement, float seed);
  // Builds the tree over the instances; nothing may be added afterwards.
  void Finish();

  [[nodiscard]] bool Nearest(Ray ray, Hit& hit) const;
  // True if anything lies within ray.reach.
  [[nodiscard]] bool Blocked(Ray ray) const;

  struct Point {
    Vec3 position;
    Vec3 flatNormal;      // unit, either side
    Vec3 normal;          // the smooth one where the mesh has one
    Vec3 alongU, alongV;  // metres per unit of u and v
    float u = 0, v = 0;
    float seed = 0, instanceSeed = 0;
    Material material = Material::kDark;
  };
  [[nodiscard]] Point At(const Ray& ray, const Hit& hit) const;

  [[nodiscard]] std::size_t TriangleCount() const;
  [[nodiscard]] std::size_t InstanceCount() const { return instances_.size(); }

 private:
  struct Corners {  // of a triangle, in the order of the tree's leaves
    Vec3 origin, edge1, edge2;
  };
  struct Shape {
    Mesh mesh;
    Bvh bvh;
    std::vector<Corners> corners;
    Box box;
  };
  struct Instance {
    Affine toWorld, toLocal;
    std::uint32_t shape = 0;
    float seed = 0;
  };
  template <bool anyHit>
  bool Trace(Ray& ray, Hit& hit) const;

  std::vector<Shape> shapes_;
  std::vector<Instance> instances_;
  Bvh bvh_;
};

}  // namespace tarnwick::photo
