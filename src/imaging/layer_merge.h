#pragma once
#include "imaging/raster_image.h"

namespace tarnwick {

// Merges of document layers. Depth 8.

// Lays the top left part of `source` that has the size of `rect` over `target` at
// `rect` through `mask`, which has the source's size: d + ((s - d) * m) / 255, truncated toward
// zero, in the first three planes that both have. One mask plane serves all. False, and nothing
// written, when sizes do not agree or pixels are missing.
[[nodiscard]] bool CompositeThroughMask(RasterImage& target, const RasterImage& source,
                                        const RasterImage& mask, const Rect& rect);

// Each sample of plane 3 becomes at least `value`. Nothing below 4 planes.
void RaiseAlpha(RasterImage& image, std::uint8_t value);

// Each sample of plane 3 of `target` becomes at least that of plane 0 of `alpha`
// at the same place. Nothing below 4 planes.
void MergeAlpha(RasterImage& target, const RasterImage& alpha);

}  // namespace tarnwick
