#pragma once
#include <climits>
#include <cstdint>

namespace tarnwick {

// Toward zero; a value that fits no int, and NaN, gives the most negative one,
// as the processor's own conversion does.
[[nodiscard]] inline int TruncateToInt(double value) {
  return value > -2147483649.0 && value < 2147483648.0 ? static_cast<int>(value) : INT_MIN;
}

// 32-bit arithmetic that wraps instead of overflowing: settings may hold any
// number, and the picture then has to come out the same everywhere.
[[nodiscard]] inline std::int32_t WrappingAdd(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}
[[nodiscard]] inline std::int32_t WrappingSubtract(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}
[[nodiscard]] inline std::int32_t WrappingMultiply(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b));
}

// 0..255; NaN counts as 0.
[[nodiscard]] inline float LimitToByteRange(float value) {
  return value > 0.0F ? (value < 255.0F ? value : 255.0F) : 0.0F;
}

}  // namespace tarnwick
