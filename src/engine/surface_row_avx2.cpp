#include "engine/surface_row_kernel.h"

namespace tarnwick {

void SurfaceRowAvx2(const SurfaceRow& row, const SurfaceLook& look) {
  SurfaceRowKernel(row, look);
}

}  // namespace tarnwick
