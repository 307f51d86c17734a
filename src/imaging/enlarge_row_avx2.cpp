#include "imaging/enlarge_row_kernel.h"

namespace tarnwick {

void EnlargeRowAvx2(const EnlargeRowArgs& args) {
  EnlargeRowKernel(args);
}

}  // namespace tarnwick
