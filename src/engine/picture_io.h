#pragma once
#include "engine/apply_run.h"
#include "engine/render_state.h"

namespace tarnwick {

// The road between a picture's own samples and the render's 4-byte pixels.

// Fills state.sourcePixels from `job.in` for the window of `state`, by nearest
// neighbour, and starts outputPixels as a copy of it. Beyond the picture the
// last row and column repeat. kBadPicture never; kOutOfMemory, kNoConverter as
// in apply_run.h; without a converter both are there, and transparent black.
[[nodiscard]] ApplyOutcome FetchSource(RenderState& state, const PictureJob& job);

// Writes state.outputPixels to `job.out`: below 4 planes alpha is multiplied in,
// so transparency turns black.
[[nodiscard]] ApplyOutcome WriteResult(const RenderState& state, const PictureJob& job);

// Samples the picture's own first planes, four at most, into `job.out` for the
// window of `state`, without a conversion.
void CopyOriginal(const RenderState& state, const PictureJob& job);

// One byte a pixel of the whole document, job.width a row: alpha (255 below 4
// planes, else the fourth sample, which in a CMYK picture is its black) times the
// selection, / 255 truncated. False
// without memory.
[[nodiscard]] bool BuildSelectionPlane(const PictureJob& job, PageBuffer<std::uint8_t>& plane);

}  // namespace tarnwick
