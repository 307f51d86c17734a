#include "engine/wash_row_kernel.h"

namespace tarnwick {

void WashRowAvx2(const WashRow& row, const WashLook& look) {
  WashRowKernel(row, look);
}

}  // namespace tarnwick
