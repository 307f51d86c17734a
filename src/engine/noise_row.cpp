#include "engine/noise_row_kernel.h"

namespace tarnwick {

void NoiseRunPlain(const NoiseRun& run) {
  NoiseRunKernel(run);
}

void NoiseBytesPlain(const NoiseBytes& bytes) {
  NoiseBytesKernel(bytes);
}

}  // namespace tarnwick
