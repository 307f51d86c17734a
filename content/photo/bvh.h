#pragma once
#include <cstdint>
#include <vector>

#include "vec3.h"

namespace tarnwick::photo {

struct Box {
  Vec3 lo{1e30f, 1e30f, 1e30f};
  Vec3 hi{-1e30f, -1e30f, -1e30f};

  void Grow(Vec3 p) {
    lo = Min(lo, p);
    hi = Max(hi, p);
  }
  void Grow(const Box& b) {
    lo = Min(lo, b.lo);
    hi = Max(hi, b.hi);
  }
  [[nodiscard]] float HalfArea() const {
    const Vec3 d = hi - lo;
    return d.x < 0 ? 0.0f : d.x * d.y + d.y * d.z + d.z * d.x;
  }
};

// A box tree with four branches a node, over triangles or over whole meshes.
struct Bvh {
  struct Node {
    float lo[3][4];
    float hi[3][4];
    // A node if count is 0, else the first of `count` entries of `order`. A
    // branch that is not there has a box nothing hits.
    std::uint32_t child[4];
    std::uint32_t count[4];
  };
  std::vector<Node> nodes;  // the first is the root; empty if there is nothing
  std::vector<std::uint32_t> order;
};

// Sorts the boxes into a tree, by the surface a random ray is likely to meet.
[[nodiscard]] Bvh BuildBvh(const std::vector<Box>& boxes, int leafSize);

// A ray from `origin` along `direction`, which need not have unit length;
// `reach` is in lengths of it and shrinks as nearer hits are found.
struct Ray {
  Vec3 origin;
  Vec3 direction;
  float reach = 1e30f;
};

}  // namespace tarnwick::photo
