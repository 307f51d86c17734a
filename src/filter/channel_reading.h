#pragma once
#include "filter/filter_globals.h"
#include "imaging/raster_image.h"

namespace tarnwick {

// Reads a chain of channels at full size, each straight into a plane of `image`,
// top left of the filter's rectangle at top left of the image. Through the
// channel ports suite if the host has it, else through the record's procedures.
//
// Needs   an image as deep as the channels. What does not fit it, in size or
//         number, is left out.
// Errors  false when a channel cannot be read; the host's error, or
//         errPlugInHostInsufficient, is then in *gResult. The planes before it
//         are filled. Each call starts with a *gResult of 0, so that one layer's
//         failure is none of the next one's.
[[nodiscard]] bool ReadChannelChain(FilterGlobals& g, const host::ReadChannelDesc* channels,
                                    RasterImage& image);

}  // namespace tarnwick
