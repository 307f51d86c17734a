#pragma once
#include "engine/render_state.h"

namespace tarnwick {

// Anew, at the size of the render. A buffer without memory leaves its stage out.
// They run whenever the window's size changes.
void AllocateBackgroundBuffer(RenderState& state);

// Depth map and, in a preview, the surface's own result, which starts as a copy
// of the source: what no texture covers shows the picture. Sets surfaceStale.
void AllocateSurfaceBuffers(RenderState& state);

}  // namespace tarnwick
