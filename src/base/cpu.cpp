#include "base/cpu.h"

namespace tarnwick {

Isa BestIsa() {
#if defined(__x86_64__) || defined(__i386__)
  // The check asks the system too whether it saves the wide registers.
  static const bool avx2 = [] {
    __builtin_cpu_init();
    return __builtin_cpu_supports("avx2") != 0;
  }();
  return avx2 ? Isa::kAvx2 : Isa::kPlain;
#else
  return Isa::kPlain;
#endif
}

}  // namespace tarnwick
