#pragma once
#include <cstdint>

#include "mesh.h"

namespace tarnwick::photo {

// Small plants, rooted around the origin.

// `blades` blades of grass within `radius`; `height` is that of the tallest.
struct TuftPlan {
  std::uint32_t seed = 1;
  int blades = 160;
  float radius = 0.28f;
  float height = 0.16f;
  float width = 0.004f;
  float dry = 0.15f;  // share of dead blades
  int pieces = 3;     // along a blade
};
[[nodiscard]] Mesh MakeTuft(const TuftPlan& plan);

// Stalks with ears, standing above the grass.
[[nodiscard]] Mesh MakeSeedHeads(std::uint32_t seed, int stalks, float height);
// A broad-leaved weed: a rosette and a leafy stem.
[[nodiscard]] Mesh MakeWeed(std::uint32_t seed, float height);
// Meadow flowers on thin stems; all of one kind.
[[nodiscard]] Mesh MakeFlowers(std::uint32_t seed, int count, float height, float kind);

}  // namespace tarnwick::photo
