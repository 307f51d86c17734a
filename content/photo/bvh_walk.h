#pragma once
#include <cstring>

#include "bvh.h"

namespace tarnwick::photo {

// Visits the leaves of `bvh` that `ray` may meet, nearest boxes first, and
// leaves out what lies beyond ray.reach. `leaf(first, count)` looks at entries
// of bvh.order, may shorten ray.reach, and returns true to end the walk.
//
// The four boxes of a node are tested at once in vectors of the compiler's own;
// they do the same arithmetic lane by lane on every machine.
using Float4 = float __attribute__((vector_size(16)));
using Int4 = int __attribute__((vector_size(16)));

namespace detail {
inline Float4 Load(const float* p) {
  Float4 v;
  std::memcpy(&v, p, sizeof v);
  return v;
}
inline Float4 Lower(Float4 a, Float4 b) {
  return a < b ? a : b;
}
inline Float4 Higher(Float4 a, Float4 b) {
  return a > b ? a : b;
}
}  // namespace detail

template <typename Leaf>
bool WalkBvh(const Bvh& bvh, Ray& ray, Leaf&& leaf) {
  if (bvh.nodes.empty()) return false;
  struct Entry {
    std::uint32_t child, count;
    float near;
  };
  Entry stack[96];
  int depth = 0;
  stack[depth++] = {0, 0, 0};
  // No component is exactly 0: 0 times infinity would lose boxes.
  const auto inverse = [](float d) { return 1 / (d < 1e-12f && d > -1e-12f ? 1e-12f : d); };
  const Vec3 inv{inverse(ray.direction.x), inverse(ray.direction.y), inverse(ray.direction.z)};
  const float origin[3] = {ray.origin.x, ray.origin.y, ray.origin.z};
  const float scale[3] = {inv.x, inv.y, inv.z};
  while (depth > 0) {
    const Entry top = stack[--depth];
    if (top.near > ray.reach) continue;
    if (top.count > 0) {
      if (leaf(top.child, top.count)) return true;
      continue;
    }
    const Bvh::Node& node = bvh.nodes[top.child];
    Float4 near = {0, 0, 0, 0};
    Float4 far = {ray.reach, ray.reach, ray.reach, ray.reach};
    for (int axis = 0; axis < 3; ++axis) {
      const float o = origin[axis];
      const float s = scale[axis];
      const float* first = s >= 0 ? node.lo[axis] : node.hi[axis];
      const float* last = s >= 0 ? node.hi[axis] : node.lo[axis];
      near = detail::Higher(near, (detail::Load(first) - o) * s);
      far = detail::Lower(far, (detail::Load(last) - o) * s);
    }
    const Int4 hit = near <= far;
    const int base = depth;
    for (int i = 0; i < 4; ++i) {
      if (hit[i] == 0) continue;
      const Entry entry{node.child[i], node.count[i], near[i]};
      int at = depth++;
      while (at > base && stack[at - 1].near < entry.near) {
        stack[at] = stack[at - 1];
        --at;
      }
      stack[at] = entry;
    }
  }
  return false;
}

}  // namespace tarnwick::photo
