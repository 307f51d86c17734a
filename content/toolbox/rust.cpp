#include "toolbox/rust.h"

#include "toolbox/maths.h"
#include "toolbox/tone.h"

namespace tarnwick::content {

RustBloom::RustBloom(std::uint32_t seed)
    : specks_{9.0F, 0.75F, 0.6F, 4.2F, seed},
      drops_{40.0F, 0.6F, 2.0F, 15.0F, seed + 1},
      crust_{22.0F, 4, 0.66F, seed + 2},
      grain_{5.0F, 3, 0.75F, seed + 12} {}

float RustBloom::At(const Spot& spot, const Spot& moved, float reach) const {
  const float solid =
      SoftThreshold(reach + 0.30F * crust_(spot) + 0.14F * grain_(spot), 0.40F, 0.50F);
  const float drop = SoftThreshold(drops_(moved).depth + 0.8F * reach, 0.62F, 0.22F);
  const float speck = SoftThreshold(specks_(spot).depth + 1.1F * reach, 0.66F, 0.25F);
  return Clamp01(solid + 0.55F * drop + 0.60F * speck);
}

}  // namespace tarnwick::content
