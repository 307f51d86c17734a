#pragma once
#include "engine/render_state.h"

namespace tarnwick {

// For a render whose size has changed: sets surfaceStale and, in a preview, makes
// the surface's own result anew. Without memory the surface is left out.
void AllocateSurfaceBuffers(RenderState& state);

// What no texture covers shows the picture: a preview's surface result starts as
// a copy of the source. False when there is no result to render into.
[[nodiscard]] bool BeginSurfaceResult(RenderState& state);

}  // namespace tarnwick
