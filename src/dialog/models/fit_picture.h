#pragma once
#include "textures/thumbnail_picture.h"

namespace tarnwick {

// The picture in another size, smoothly; as it is where it has that size or no pixels.
// A thumbnail that was kept for smaller cells fills a larger one with it.
[[nodiscard]] ThumbnailPicture FitPicture(ThumbnailPicture picture, ThumbnailSize size);

// The middle of a picture, no larger than `size`.
[[nodiscard]] ThumbnailPicture CentreOf(ThumbnailPicture picture, ThumbnailSize size);

}  // namespace tarnwick
