#include "imaging/enlarge_row_kernel.h"

namespace tarnwick {

void EnlargeRowPlain(const EnlargeRowArgs& args) {
  EnlargeRowKernel(args);
}

}  // namespace tarnwick
