#pragma once
#include <climits>
#include <cstdint>

namespace tarnwick {

// Toward zero; a value that fits no int, and NaN, gives the most negative one,
// as the processor's own conversion does.
[[nodiscard]] inline int TruncateToInt(double value) {
  return value > -2147483649.0 && value < 2147483648.0 ? static_cast<int>(value) : INT_MIN;
}

// 0..255; NaN counts as 0.
[[nodiscard]] inline float LimitToByteRange(float value) {
  return value > 0.0F ? (value < 255.0F ? value : 255.0F) : 0.0F;
}

}  // namespace tarnwick
