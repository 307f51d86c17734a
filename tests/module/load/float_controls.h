#pragma once
#include <cstdint>

namespace tarnwick {

// How the processor is told to calculate.
struct FloatControls {
  std::uint32_t sse = 0;
  std::uint16_t x87 = 0;
  bool operator==(const FloatControls&) const = default;
};

// What a host may have set: rounding up, denormals as zero, 53-bit precision.
inline constexpr FloatControls kOddControls{0x1F80 | 0x4000 | 0x8040, 0x0A7F};

// Without the flags of what has happened.
inline FloatControls ReadFloatControls() {
  FloatControls now;
  asm volatile("stmxcsr %0" : "=m"(now.sse));
  asm volatile("fnstcw %0" : "=m"(now.x87));
  now.sse &= 0xFFC0;
  return now;
}

inline void SetFloatControls(FloatControls wanted) {
  asm volatile("ldmxcsr %0" : : "m"(wanted.sse));
  asm volatile("fldcw %0" : : "m"(wanted.x87));
}

// The odd ones for the length of a scope.
class OddControls {
 public:
  OddControls() { SetFloatControls(kOddControls); }
  ~OddControls() { SetFloatControls(before_); }
  OddControls(const OddControls&) = delete;
  OddControls& operator=(const OddControls&) = delete;

 private:
  FloatControls before_ = ReadFloatControls();
};

}  // namespace tarnwick
