#include "engine/background_row_kernel.h"

namespace tarnwick {

void BackgroundRowPlain(const BackgroundRow& row) {
  BackgroundRowKernel(row);
}

}  // namespace tarnwick
