#pragma once
#include <bit>
#include <cmath>
#include <cstdint>

// Arithmetic for pixels that must come out the same from every compiler: basic
// operations and square roots only, since those are exact by definition, while
// the last bit of a library's sine or power is anyone's guess.

namespace tarnwick::content {

inline constexpr float kPi = 3.14159265F;
inline constexpr float kTau = 6.28318531F;

[[nodiscard]] constexpr float Clamp(float v, float lo, float hi) {
  return v < lo ? lo : (v > hi ? hi : v);
}
[[nodiscard]] constexpr float Clamp01(float v) {
  return Clamp(v, 0.0F, 1.0F);
}
[[nodiscard]] constexpr float Mix(float a, float b, float t) {
  return a + (b - a) * t;
}
[[nodiscard]] constexpr float Min(float a, float b) {
  return b < a ? b : a;
}
[[nodiscard]] constexpr float Max(float a, float b) {
  return a < b ? b : a;
}
[[nodiscard]] constexpr float Abs(float v) {
  return v < 0.0F ? -v : v;
}
[[nodiscard]] constexpr float Square(float v) {
  return v * v;
}
[[nodiscard]] inline float Sqrt(float v) {
  return std::sqrt(v);
}
[[nodiscard]] inline float Length(float x, float y) {
  return std::sqrt(x * x + y * y);
}

// The largest whole number not above v, for |v| below 2 to the 31.
[[nodiscard]] constexpr int FloorInt(float v) {
  const int i = static_cast<int>(v);
  return static_cast<float>(i) > v ? i - 1 : i;
}
[[nodiscard]] constexpr float Fraction(float v) {
  return v - static_cast<float>(FloorInt(v));
}

// 0 at `from`, 1 at `to`, straight and limited between; `from` may be the
// larger, and the two must differ.
[[nodiscard]] constexpr float Ramp(float from, float to, float v) {
  return Clamp01((v - from) / (to - from));
}
// The same with no corner at either end.
[[nodiscard]] constexpr float SmoothRamp(float from, float to, float v) {
  const float t = Ramp(from, to, v);
  return t * t * (3.0F - 2.0F * t);
}

// Sine and cosine of an angle in radians, |angle| below 1000, within 2e-6.
[[nodiscard]] constexpr float Sin(float angle) {
  // To -1/2..1/2 turns, then folded to the quarter turns about 0.
  float t = angle * (1.0F / kTau);
  t -= static_cast<float>(FloorInt(t + 0.5F));
  if (t > 0.25F) t = 0.5F - t;
  if (t < -0.25F) t = -0.5F - t;
  const float a = t * kTau;
  const float s = a * a;
  return a * (1.0F + s * (-1.0F / 6.0F +
                          s * (1.0F / 120.0F + s * (-1.0F / 5040.0F + s * (1.0F / 362880.0F)))));
}
[[nodiscard]] constexpr float Cos(float angle) {
  return Sin(angle + 0.25F * kTau);
}

// 2 to the v, v in -126..127 (limited), within 1e-6 of itself.
[[nodiscard]] constexpr float Exp2(float v) {
  v = Clamp(v, -126.0F, 127.0F);
  const int whole = FloorInt(v);
  const float x = (v - static_cast<float>(whole)) * 0.693147181F;
  const float part =
      1.0F + x * (1.0F + x * (0.5F + x * (1.0F / 6.0F +
                                          x * (1.0F / 24.0F +
                                               x * (1.0F / 120.0F +
                                                    x * (1.0F / 720.0F + x * (1.0F / 5040.0F)))))));
  return part * std::bit_cast<float>(static_cast<std::uint32_t>(whole + 127) << 23);
}
[[nodiscard]] constexpr float Exp(float v) {
  return Exp2(v * 1.44269504F);
}

// The logarithm to base 2 of a normal v above 0, within 1e-6.
[[nodiscard]] constexpr float Log2(float v) {
  const std::uint32_t bits = std::bit_cast<std::uint32_t>(v);
  int exponent = static_cast<int>(bits >> 23) - 127;
  float m = std::bit_cast<float>((bits & 0x7FFFFFU) | 0x3F800000U);
  if (m > 1.41421356F) {
    m *= 0.5F;
    ++exponent;
  }
  // log m = 2 artanh((m - 1) / (m + 1)), whose series is short for m near 1.
  const float z = (m - 1.0F) / (m + 1.0F);
  const float s = z * z;
  const float log =
      2.0F * z * (1.0F + s * (1.0F / 3.0F + s * (0.2F + s * (1.0F / 7.0F + s * (1.0F / 9.0F)))));
  return static_cast<float>(exponent) + log * 1.44269504F;
}
// base to the power, 0 for a base of 0 or below.
[[nodiscard]] constexpr float Pow(float base, float power) {
  return base <= 1.17549435e-38F ? 0.0F : Exp2(Log2(base) * power);
}

}  // namespace tarnwick::content
