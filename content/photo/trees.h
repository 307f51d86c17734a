#pragma once
#include <cstdint>

#include "mesh.h"

namespace tarnwick::photo {

// A broad-leaved tree with its foot at the origin.
struct TreePlan {
  std::uint32_t seed = 1;
  float height = 9;                                       // metres, about
  float spread = 3.4f;                                    // length of the lowest limbs
  float bareTrunk = 0.18f;                                // share of the trunk without limbs
  int limbs = 18, branches = 11, twigs = 9, leaves = 26;  // each on the one before
  float leafLength = 0.085f;
};
[[nodiscard]] Mesh MakeTree(const TreePlan& plan);

}  // namespace tarnwick::photo
