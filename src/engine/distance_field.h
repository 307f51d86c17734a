#pragma once
#include <cstdint>

#include "base/page_buffer.h"
#include "imaging/raster_image.h"

namespace tarnwick {

// The squared Euclidean distance of each storage sample of plane 0 to the
// nearest sample of 0, by the sequential vector transform of P.-E. Danielsson,
// "Euclidean Distance Mapping", Computer Graphics and Image Processing 14 (1980):
// exact but for rare ties between far seeds, which are part of the look.
//
// Needs   a cleared frame, so that every sample has a seed.
// Result  StorageWidth() * StorageHeight() words; the largest in `largest`.
// Errors  false, and empty, without pixels or memory.
[[nodiscard]] bool BuildDistanceField(const RasterImage& map, PageBuffer<std::int32_t>& field,
                                      std::int32_t& largest);

}  // namespace tarnwick
