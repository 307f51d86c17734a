#pragma once
#include <cstdint>

#include "toolbox/cells.h"
#include "toolbox/noise.h"

namespace tarnwick::content {

// Young rust: powder that lies thick where it grows and thins out around it in
// drops and then in specks.
class RustBloom {
 public:
  explicit RustBloom(std::uint32_t seed);

  // 0..1 at a place, `reach` being how near the bloom is: above about 0.6
  // solid, about 0 the last specks. `moved` is the place after warping; it
  // keeps drops from being round.
  [[nodiscard]] float At(const Spot& spot, const Spot& moved, float reach) const;

 private:
  Spots specks_, drops_;
  Fbm crust_, grain_;
};

}  // namespace tarnwick::content
