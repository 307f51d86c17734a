#pragma once
#include "engine/stepped_render.h"

namespace tarnwick::testing {

// What a full-size run in RGB comes to: every stage as it is defined, one pixel
// after the other, nothing kept between pixels. Takes only the source, the
// selection and the working textures from `run`, which has to be over; loading
// them has tests of its own. Distances come from BuildDistanceField and noise
// tables from PerlinNoise, which are held against recorded values.
[[nodiscard]] Bytes ReferenceRender(const SteppedRender& run, const EffectSettings& settings);

}  // namespace tarnwick::testing
