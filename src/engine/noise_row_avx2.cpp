#include "engine/noise_row_kernel.h"

namespace tarnwick {

void NoiseRunAvx2(const NoiseRun& run) {
  NoiseRunKernel(run);
}

void NoiseBytesAvx2(const NoiseBytes& bytes) {
  NoiseBytesKernel(bytes);
}

}  // namespace tarnwick
