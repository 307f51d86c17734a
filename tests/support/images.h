#pragma once
#include "imaging/raster_image.h"
#include "support/pnm.h"
#include "support/test_random.h"

namespace tarnwick::testing {

// A grey image of `width` columns of storage, margin included, from all its rows.
[[nodiscard]] ImagePtr GrayOf(int width, const Bytes& rows, int margin = 0);
[[nodiscard]] ImagePtr GrayOf(const Pnm& picture);
// One plane after the other.
[[nodiscard]] ImagePtr PlanesOf(int width, int height, int planes, const Bytes& samples);

// All storage of all planes; empty without pixels.
[[nodiscard]] Bytes StorageOf(const RasterImage& image);
// The interior of plane 0, as a picture to compare.
[[nodiscard]] Pnm InteriorOf(const RasterImage& image);

}  // namespace tarnwick::testing
