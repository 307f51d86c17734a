#include "scene.h"

#include <utility>

#include "bvh_walk.h"
#include "portable_math.h"

namespace tarnwick::photo {

Affine ToWorld(const Placement& p) {
  const float s = Sin(p.turn);
  const float c = Cos(p.turn);
  const float st = Sin(p.tilt);
  const float ct = Cos(p.tilt);
  // Turn about y after the tilt about x, times the scale.
  return {{Vec3{c, s * st, s * ct} * p.scale, Vec3{0, ct, -st} * p.scale,
           Vec3{-s, c * st, c * ct} * p.scale},
          p.position};
}

namespace {

Affine Inverse(const Affine& a, float scale) {
  // The linear part is a rotation times `scale`: its inverse is its transpose
  // over the square of that.
  const float k = 1 / (scale * scale);
  Affine inverse{
      {Vec3{a.row[0].x, a.row[1].x, a.row[2].x} * k, Vec3{a.row[0].y, a.row[1].y, a.row[2].y} * k,
       Vec3{a.row[0].z, a.row[1].z, a.row[2].z} * k},
      {}};
  inverse.shift = -inverse.Direction(a.shift);
  return inverse;
}

}  // namespace

int Scene::AddMesh(Mesh mesh) {
  Shape shape;
  shape.mesh = std::move(mesh);
  const auto& vertices = shape.mesh.vertices;
  std::vector<Box> boxes(shape.mesh.triangles.size());
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    for (const std::uint32_t corner : shape.mesh.triangles[i].corner)
      boxes[i].Grow(vertices[corner].position);
    shape.box.Grow(boxes[i]);
  }
  shape.bvh = BuildBvh(boxes, 4);
  for (const std::uint32_t i : shape.bvh.order) {
    const Triangle& t = shape.mesh.triangles[i];
    const Vec3 a = vertices[t.corner[0]].position;
    shape.corners.push_back(
        {a, vertices[t.corner[1]].position - a, vertices[t.corner[2]].position - a});
  }
  shapes_.push_back(std::move(shape));
  return static_cast<int>(shapes_.size() - 1);
}

void Scene::AddInstance(int mesh, const Placement& placement, float seed) {
  Instance instance;
  instance.toWorld = ToWorld(placement);
  instance.toLocal = Inverse(instance.toWorld, placement.scale);
  instance.shape = static_cast<std::uint32_t>(mesh);
  instance.seed = seed;
  instances_.push_back(instance);
}

void Scene::Finish() {
  std::vector<Box> boxes(instances_.size());
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    const Box& local = shapes_[instances_[i].shape].box;
    for (int corner = 0; corner < 8; ++corner) {
      boxes[i].Grow(instances_[i].toWorld.Point({(corner & 1) != 0 ? local.hi.x : local.lo.x,
                                                 (corner & 2) != 0 ? local.hi.y : local.lo.y,
                                                 (corner & 4) != 0 ? local.hi.z : local.lo.z}));
    }
  }
  bvh_ = BuildBvh(boxes, 1);
}

template <bool anyHit>
bool Scene::Trace(Ray& ray, Hit& hit) const {
  bool found = false;
  WalkBvh(bvh_, ray, [&](std::uint32_t first, std::uint32_t count) {
    for (std::uint32_t i = first; i < first + count; ++i) {
      const std::uint32_t index = bvh_.order[i];
      const Instance& instance = instances_[index];
      const Shape& shape = shapes_[instance.shape];
      // The direction keeps its scale, so that distances are the world's.
      Ray local{instance.toLocal.Point(ray.origin), instance.toLocal.Direction(ray.direction),
                ray.reach};
      const Vec3 d = local.direction;
      WalkBvh(shape.bvh, local, [&](std::uint32_t from, std::uint32_t n) {
        for (std::uint32_t t = from; t < from + n; ++t) {
          const Corners& corners = shape.corners[t];
          const Vec3 p = Cross(d, corners.edge2);
          const float det = Dot(corners.edge1, p);
          if (det == 0) continue;
          const float inv = 1 / det;
          const Vec3 s = local.origin - corners.origin;
          const float b = Dot(s, p) * inv;
          if (b < 0 || b > 1) continue;
          const Vec3 q = Cross(s, corners.edge1);
          const float c = Dot(d, q) * inv;
          if (c < 0 || b + c > 1) continue;
          const float distance = Dot(corners.edge2, q) * inv;
          if (distance <= 0 || distance >= local.reach) continue;
          local.reach = ray.reach = distance;
          found = true;
          if (anyHit) return true;
          hit = {distance, index, shape.bvh.order[t], b, c};
        }
        return false;
      });
      if (anyHit && found) return true;
    }
    return false;
  });
  return found;
}

bool Scene::Nearest(Ray ray, Hit& hit) const {
  return Trace<false>(ray, hit);
}

bool Scene::Blocked(Ray ray) const {
  Hit unused;
  return Trace<true>(ray, unused);
}

Scene::Point Scene::At(const Ray& ray, const Hit& hit) const {
  const Instance& instance = instances_[hit.instance];
  const Mesh& mesh = shapes_[instance.shape].mesh;
  const Triangle& t = mesh.triangles[hit.triangle];
  const Vertex& a = mesh.vertices[t.corner[0]];
  const Vertex& b = mesh.vertices[t.corner[1]];
  const Vertex& c = mesh.vertices[t.corner[2]];
  const float wa = 1 - hit.b - hit.c;
  Point p;
  p.position = ray.origin + ray.direction * hit.distance;
  p.u = wa * a.u + hit.b * b.u + hit.c * c.u;
  p.v = wa * a.v + hit.b * b.v + hit.c * c.v;
  p.seed = t.seed;
  p.instanceSeed = instance.seed;
  p.material = t.material;
  const Vec3 e1 = b.position - a.position;
  const Vec3 e2 = c.position - a.position;
  p.flatNormal = Normalized(instance.toWorld.Direction(Cross(e1, e2)));
  const Vec3 smooth = a.normal * wa + b.normal * hit.b + c.normal * hit.c;
  p.normal =
      Dot(smooth, smooth) > 0 ? Normalized(instance.toWorld.Direction(smooth)) : p.flatNormal;
  const float du1 = b.u - a.u;
  const float dv1 = b.v - a.v;
  const float du2 = c.u - a.u;
  const float dv2 = c.v - a.v;
  const float det = du1 * dv2 - du2 * dv1;
  if (det > 1e-12f || det < -1e-12f) {
    const float inv = 1 / det;
    p.alongU = instance.toWorld.Direction((e1 * dv2 - e2 * dv1) * inv);
    p.alongV = instance.toWorld.Direction((e2 * du1 - e1 * du2) * inv);
  } else {
    Basis(p.flatNormal, p.alongU, p.alongV);
  }
  return p;
}

std::size_t Scene::TriangleCount() const {
  std::size_t count = 0;
  for (const Shape& shape : shapes_) count += shape.mesh.triangles.size();
  return count;
}

}  // namespace tarnwick::photo
