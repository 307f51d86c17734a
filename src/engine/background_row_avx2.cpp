#include "engine/background_row_kernel.h"

namespace tarnwick {

void BackgroundRowAvx2(const BackgroundRow& row) {
  BackgroundRowKernel(row);
}

}  // namespace tarnwick
