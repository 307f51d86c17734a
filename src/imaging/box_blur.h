#pragma once
#include "base/cpu.h"
#include "base/thread_pool.h"
#include "imaging/raster_image.h"

namespace tarnwick {

// Box blur in place: the mean of 2 * radius + 1 columns, then of as many rows.
// Both means are integer divisions that truncate.
//
// Domain   depth 8; the whole storage, margin included. The planes are walked as
//          one stream of rows.
// Radius   in samples; 0 copies. The cost does not depend on it.
// Needs    a cleared frame (ClearFrame): first and last sample of each row 0.
//          The running sum takes the first sample out again and again, so a row
//          that starts with v loses up to v * radius. Not checked.
// Edges    Columns outside count as 0. Rows wrap: above the first lies the last,
//          so a radius wider than the frame lets top and bottom bleed into each
//          other. Looks depend on that; do not mend it. The last row counts as
//          0. Column 0 starts from a sum of 0.
// Memory   one temporary of the image's size, freed before return.
// Threads  splits over `pool`, if given; same bytes for any split.
// Errors   false without pixels or memory, or for a radius below 0 or above 2^21;
//          the image is then unchanged.
[[nodiscard]] bool BoxBlur(RasterImage& image, int radius, ThreadPool* pool = nullptr);

}  // namespace tarnwick
