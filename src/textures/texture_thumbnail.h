#pragma once
#include <optional>
#include <string>

#include "imaging/raster_image.h"
#include "textures/texture_record.h"
#include "textures/thumbnail_picture.h"

namespace tarnwick {

// Samples `size` points, `scale` apart, around the middle of a texture's first
// plane: every fourth pixel shows its grain as it is, where a mean would blur it.
//
// A side that is shorter than the area wanted is used whole, and `smallSource`
// set; the steps are then smaller. A side shorter than the thumbnail itself
// keeps steps of 1, begins at its first sample and repeats its last one.
[[nodiscard]] std::optional<ThumbnailPicture> SampleThumbnail(const RasterImage& texture,
                                                              ThumbnailSize size, float scale,
                                                              bool& smallSource);

// The same from the file `name` in `folder`, which is decoded for it. Nothing if
// it cannot be read.
[[nodiscard]] std::optional<ThumbnailPicture> MakeThumbnail(const std::string& folder,
                                                            const std::string& name,
                                                            ThumbnailSize size, float scale,
                                                            bool& smallSource);

// The picture of a cell: from the bitmap beside the texture, if it can be used,
// else from the texture, and then it is kept as that bitmap. With `sizeCounts` a
// bitmap of another size is made anew; cells that vary in size leave that out.
[[nodiscard]] std::optional<ThumbnailPicture> LoadOrMakeThumbnail(const std::string& folder,
                                                                  TextureRecord& record,
                                                                  ThumbnailSize size,
                                                                  bool sizeCounts);

}  // namespace tarnwick
