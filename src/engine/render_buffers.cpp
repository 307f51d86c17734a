#include "engine/render_buffers.h"

#include <cstring>

namespace tarnwick {

void AllocateSurfaceBuffers(RenderState& state) {
  state.surfaceStale = true;
  if (state.previewMode) (void)state.surfaceResult.Allocate(state.PixelCount() * 4);
}

bool BeginSurfaceResult(RenderState& state) {
  if (!state.previewMode) return state.SurfaceResult() != nullptr;
  const std::size_t bytes = state.PixelCount() * 4;
  if (state.surfaceResult.Size() != bytes || state.sourcePixels.Size() != bytes) return false;
  std::memcpy(state.surfaceResult.Data(), state.sourcePixels.Data(), bytes);
  return true;
}

}  // namespace tarnwick
