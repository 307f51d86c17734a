#pragma once
#include "support/test_random.h"

namespace tarnwick::testing {

// Box blur by its definition, for rows of `width` with a cleared frame: one
// window sum a sample, columns outside count as 0, rows wrap, the last row counts
// as 0. Column 0 is part of the frame and comes back as 0.
[[nodiscard]] Bytes WindowSums(const Bytes& in, int width, int radius);

}  // namespace tarnwick::testing
