#pragma once
#include "engine/render_state.h"

namespace tarnwick {

// For a render whose size has changed: sets surfaceStale and, in a preview, makes
// the surface's own result anew. It starts as a copy of the source: what no
// texture covers shows the picture. Without memory the surface is left out.
void AllocateSurfaceBuffers(RenderState& state);

}  // namespace tarnwick
