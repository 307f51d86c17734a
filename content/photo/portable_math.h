#pragma once

namespace tarnwick::photo {

// Elementary functions made of + - * / and bit patterns only, so that the
// photograph has the same bytes whatever compiler and C library made it.
// Relative error about 1e-7, good enough for light.

inline constexpr float kPi = 3.14159265f;

[[nodiscard]] float Sin(float radians);
[[nodiscard]] float Cos(float radians);
[[nodiscard]] float Exp2(float x);  // 0 below -126, limited above 127
[[nodiscard]] float Log2(float x);  // -126 for zero and less
[[nodiscard]] inline float Exp(float x) {
  return Exp2(x * 1.44269504f);
}
[[nodiscard]] inline float Pow(float x, float y) {
  return x <= 0 ? 0.0f : Exp2(y * Log2(x));
}

}  // namespace tarnwick::photo
