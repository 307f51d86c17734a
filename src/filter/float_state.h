#pragma once
#include <cstdint>

namespace tarnwick {

// The state of the floating-point unit that the engine's numbers are defined in:
// rounding to nearest, denormals kept, no traps. Hosts may have set another one,
// with traps on; it is put back at the end of the scope.
class FloatState {
 public:
  FloatState() {
#if defined(__i386__) || defined(__x86_64__)
    const std::uint32_t plainSse = 0x1F80;
    const std::uint16_t plainX87 = 0x037F;
    asm volatile("stmxcsr %0" : "=m"(sse_));
    asm volatile("fnstcw %0" : "=m"(x87_));
    asm volatile("ldmxcsr %0" : : "m"(plainSse));
    asm volatile("fldcw %0" : : "m"(plainX87));
#endif
  }
  ~FloatState() {
#if defined(__i386__) || defined(__x86_64__)
    // Flags that were raised in between would trap at the host's next step.
    asm volatile("fnclex");
    asm volatile("fldcw %0" : : "m"(x87_));
    asm volatile("ldmxcsr %0" : : "m"(sse_));
#endif
  }
  FloatState(const FloatState&) = delete;
  FloatState& operator=(const FloatState&) = delete;

 private:
  std::uint32_t sse_ = 0;
  std::uint16_t x87_ = 0;
};

}  // namespace tarnwick
