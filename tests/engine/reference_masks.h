#pragma once
#include "support/pnm.h"
#include "support/test_random.h"

namespace tarnwick::testing {

// The two masks of a wash at full size, by their definitions: slow, without a
// cache, one sample at a time.

// For a texture of width x height; the interior of the map.
[[nodiscard]] Bytes CoverageByDefinition(int width, int height, int coverage, int scale, int seed);

// Five octaves of noise over the storage of such a map.
[[nodiscard]] Bytes NoiseByDefinition(int width, int height, int scale, int seed);

// `plane` is alpha times selection, width x height; empty means all.
[[nodiscard]] Bytes EdgeByDefinition(const Bytes& plane, int width, int height, int distance,
                                     int softness);

}  // namespace tarnwick::testing
