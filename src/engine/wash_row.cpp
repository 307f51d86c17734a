#include "engine/wash_row_kernel.h"

namespace tarnwick {

void WashRowPlain(const WashRow& row, const WashLook& look) {
  WashRowKernel(row, look);
}

}  // namespace tarnwick
