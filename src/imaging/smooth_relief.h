#pragma once
#include "base/cpu.h"
#include "base/row_progress.h"
#include "imaging/raster_image.h"

namespace tarnwick {

// Takes the stair-steps out of a height map, in place: a 3x3 mean with the
// weights 0.05 0.1 0.05, 0.1 0.4 0.1, 0.05 0.1 0.05 over plane 0 of the interior
// without its outermost rows and columns.
//
// The filter is recursive: it runs from top to bottom and left to right, and the
// neighbours above and to the left are already smoothed. Looks depend on that.
// Sums are 32-bit floats, row by row from the left, topped at 255, truncated.
//
// Images of fewer than 3 rows or columns, or without pixels, are left alone.
// Progress is reported for each row. Same bytes for any `isa`.
void SmoothRelief(RasterImage& image, Progress* progress = nullptr, Isa isa = BestIsa());

}  // namespace tarnwick
