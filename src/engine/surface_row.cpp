#include "engine/surface_row_kernel.h"

namespace tarnwick {

void SurfaceRowPlain(const SurfaceRow& row, const SurfaceLook& look) {
  SurfaceRowKernel(row, look);
}

}  // namespace tarnwick
