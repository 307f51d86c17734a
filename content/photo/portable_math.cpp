#include "portable_math.h"

#include <bit>
#include <cmath>
#include <cstdint>

namespace tarnwick::photo {
namespace {

// sin(2 pi t) for t in -0.25..0.25: the Taylor series to the 13th power.
double SinTurn(double t) {
  const double x = t * 6.283185307179586;
  const double s = x * x;
  return x * (1 + s * (-1.0 / 6 +
                       s * (1.0 / 120 + s * (-1.0 / 5040 + s * (1.0 / 362880 +
                                                                s * (-1.0 / 39916800 +
                                                                     s * (1.0 / 6227020800.0)))))));
}

}  // namespace

float Sin(float radians) {
  double t = static_cast<double>(radians) * 0.15915494309189535;
  t -= std::floor(t + 0.5);
  if (t > 0.25) t = 0.5 - t;
  if (t < -0.25) t = -0.5 - t;
  return static_cast<float>(SinTurn(t));
}

float Cos(float radians) {
  return Sin(radians + 1.57079633f);
}

float Exp2(float x) {
  if (x < -126) return 0;
  if (x > 127) x = 127;
  const float whole = std::floor(x);
  const double f = (static_cast<double>(x) - static_cast<double>(whole)) * 0.6931471805599453;
  const double series =
      1 +
      f * (1 + f * (1.0 / 2 +
                    f * (1.0 / 6 + f * (1.0 / 24 + f * (1.0 / 120 + f * (1.0 / 720 + f / 5040))))));
  const auto exponent = static_cast<std::uint32_t>(static_cast<int>(whole) + 127);
  return static_cast<float>(series) * std::bit_cast<float>(exponent << 23);
}

float Log2(float x) {
  if (!(x > 1.18e-38f)) return -126;
  const auto bits = std::bit_cast<std::uint32_t>(x);
  int exponent = static_cast<int>(bits >> 23) - 127;
  double m = static_cast<double>(std::bit_cast<float>((bits & 0x7fffffu) | 0x3f800000u));
  if (m > 1.4142135) {  // keeps the series' argument small on both sides of 1
    m *= 0.5;
    ++exponent;
  }
  const double z = (m - 1) / (m + 1);
  const double s = z * z;
  const double series =
      2 * z * (1 + s * (1.0 / 3 + s * (1.0 / 5 + s * (1.0 / 7 + s * (1.0 / 9 + s / 11)))));
  return static_cast<float>(exponent + series * 1.4426950408889634);
}

}  // namespace tarnwick::photo
