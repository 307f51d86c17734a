#include "base/portable_math.h"

#include <cmath>

namespace tarnwick {
namespace {

// pi / 2 in three parts; the first two have so many zero bits at their end that
// their products with a quadrant number are exact.
constexpr double kHalfPi1 = 0x1.921fb544p+0;
constexpr double kHalfPi2 = 0x1.0b4611a6p-34;
constexpr double kHalfPi3 = 0x1.3198a2e037073p-69;
constexpr double kTwoOverPi = 0x1.45f306dc9c883p-1;

// x - x^3/3! + x^5/5! ... for |x| <= pi/4, smallest term first.
double SinSeries(double x) {
  const double z = x * x;
  double sum = -1.0 / 121645100408832000.0;
  sum = sum * z + 1.0 / 355687428096000.0;
  sum = sum * z - 1.0 / 1307674368000.0;
  sum = sum * z + 1.0 / 6227020800.0;
  sum = sum * z - 1.0 / 39916800.0;
  sum = sum * z + 1.0 / 362880.0;
  sum = sum * z - 1.0 / 5040.0;
  sum = sum * z + 1.0 / 120.0;
  sum = sum * z - 1.0 / 6.0;
  return x + x * (z * sum);
}

// 1 - x^2/2! + x^4/4! ... for |x| <= pi/4.
double CosSeries(double x) {
  const double z = x * x;
  double sum = -1.0 / 6402373705728000.0;
  sum = sum * z + 1.0 / 20922789888000.0;
  sum = sum * z - 1.0 / 87178291200.0;
  sum = sum * z + 1.0 / 479001600.0;
  sum = sum * z - 1.0 / 3628800.0;
  sum = sum * z + 1.0 / 40320.0;
  sum = sum * z - 1.0 / 720.0;
  sum = sum * z + 1.0 / 24.0;
  return 1.0 - (z / 2 - z * z * sum);
}

// sin(radians + quarter * pi / 2).
double Wave(double radians, int quarter) {
  const double quadrant = std::floor(radians * kTwoOverPi + 0.5);
  if (!(std::fabs(quadrant) < 1e9)) return NAN;
  const double rest = ((radians - quadrant * kHalfPi1) - quadrant * kHalfPi2) - quadrant * kHalfPi3;
  switch ((static_cast<int>(quadrant) + quarter) & 3) {
    case 0:
      return SinSeries(rest);
    case 1:
      return CosSeries(rest);
    case 2:
      return -SinSeries(rest);
    default:
      return -CosSeries(rest);
  }
}

}  // namespace

double PortableSin(double radians) {
  return Wave(radians, 0);
}

double PortableCos(double radians) {
  return Wave(radians, 1);
}

}  // namespace tarnwick
