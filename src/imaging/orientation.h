#pragma once
#include "base/thread_pool.h"
#include "imaging/raster_image.h"

namespace tarnwick {

// Turns, mirrors and copies. Depth 8. All return false, and write nothing, when
// an input is missing or has no pixels, or shapes do not agree.

// A quarter turn into a new image whose top left corner is the source's. Only
// plane 0 is written, the others are 0.
[[nodiscard]] bool RotateClockwise(ImagePtr& result, const RasterImage* source,
                                   ThreadPool* pool = nullptr);
[[nodiscard]] bool RotateCounterClockwise(ImagePtr& result, const RasterImage* source,
                                          ThreadPool* pool = nullptr);

// `target` receives the rows of `copy` from bottom to top, in every plane.
[[nodiscard]] bool ReverseRows(RasterImage& target, const RasterImage& copy,
                               ThreadPool* pool = nullptr);

// `target` receives each row of `copy` from right to left, in every plane.
[[nodiscard]] bool MirrorRows(RasterImage& target, const RasterImage& copy,
                              ThreadPool* pool = nullptr);

// All planes, margin included.
[[nodiscard]] bool CopyPixels(RasterImage& target, const RasterImage& source);

// The rows of `rect`, given in the interior of `source`, centred in `target`,
// for each plane that both have. What lies outside either image is left out.
[[nodiscard]] bool CopyRegion(RasterImage& target, const RasterImage& source, const Rect& rect);

}  // namespace tarnwick
