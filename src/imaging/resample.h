#pragma once
#include <cstdint>

#include "base/cpu.h"
#include "base/thread_pool.h"
#include "imaging/raster_image.h"

namespace tarnwick {

// Scales every plane of `source` by `factor` into a new image `result` of
// trunc(size * factor + 0.5) in each direction, with the mode, plane count,
// depth and margin of the source.
//
// Factor > 1   weighs four neighbours by squared distances: softer than
//              bilinear, with a flat centre. Coordinates are 32-bit floats and
//              gather rounding as they advance; weights and sums are 64-bit.
// Factor <= 1  averages a box that counts its first row and column whole and
//              only its far edge in part. The source must have no margin.
//              A factor of 1 copies.
// Source       null gives false; without pixels the blank image is returned.
// Errors       false, and `result` untouched, when the new image has no pixels:
//              a size of 0, no memory, or more than kMaxImageBytes.
// Threads      splits over rows; same bytes for any split and any `isa`.
[[nodiscard]] bool ResampleImage(ImagePtr& result, const RasterImage* source, double factor,
                                 std::uint8_t allocHint, ThreadPool* pool = nullptr,
                                 Isa isa = BestIsa());

}  // namespace tarnwick
