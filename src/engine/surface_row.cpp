#include "engine/surface_row_kernel.h"

namespace tarnwick {

SurfaceScratch::SurfaceScratch(int width)
    : light(static_cast<std::size_t>(width)), pixels(static_cast<std::size_t>(width) * 4) {
  for (std::vector<float>* planes : {source, tone, blend}) {
    for (int c = 0; c < 3; ++c) planes[c].resize(static_cast<std::size_t>(width));
  }
}

void SurfaceRowPlain(const SurfaceRow& row, const SurfaceLook& look) {
  SurfaceRowKernel(row, look);
}

}  // namespace tarnwick
