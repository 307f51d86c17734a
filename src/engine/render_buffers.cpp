#include "engine/render_buffers.h"

#include <cstring>

namespace tarnwick {

void AllocateSurfaceBuffers(RenderState& state) {
  state.surfaceStale = true;
  if (!state.previewMode || !state.sourcePixels) return;
  if (state.surfaceResult.Allocate(state.PixelCount() * 4)) {
    std::memcpy(state.surfaceResult.Data(), state.sourcePixels.Data(), state.PixelCount() * 4);
  }
}

}  // namespace tarnwick
