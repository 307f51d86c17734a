#pragma once
#include <cstdint>

namespace tarnwick::content {

// A surface of flat faces between sharp creases, as paper or foil that was
// crushed and smoothed out: triangles between scattered points, each point at
// a height of its own. One field makes a cut stone; two or three of falling
// period on top of one another make crumpled paper.
struct Facets {
  float period = 200.0F;  // pixels from point to point
  float jitter = 0.7F;    // 0 a lattice .. 0.8; more would turn faces over
  std::uint32_t seed = 1;

  // -1..1, continuous, flat within a face.
  [[nodiscard]] float operator()(float x, float y) const;
};

}  // namespace tarnwick::content
