#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "base/checked_size.h"
#include "base/portable_math.h"
#include "base/truncate.h"

namespace tarnwick::testing {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(PortableMath, IsWithinTwoUnitsOfTheLibrary) {
  // Near its zeros some libraries lose digits; those have values of their own.
  const auto near = [](double a, double b) {
    const double unit = std::nextafter(std::fabs(b), kInfinity) - std::fabs(b);
    return std::fabs(a - b) <= std::max(2 * unit, 1e-18);
  };
  for (int i = -40000; i <= 40000; ++i) {
    const double x = i * 0.001 + (i % 7) * 1e-9;
    ASSERT_TRUE(near(PortableSin(x), std::sin(x))) << x;
    ASSERT_TRUE(near(PortableCos(x), std::cos(x))) << x;
  }
  // The double next to pi is short of it by 1.2246467991473532e-16.
  EXPECT_DOUBLE_EQ(PortableSin(0x1.921fb54442d18p+1), 1.2246467991473532e-16);
  EXPECT_DOUBLE_EQ(PortableCos(0x1.921fb54442d18p+0), 6.123233995736766e-17);
  EXPECT_NEAR(PortableSin(99999.5), std::sin(99999.5), 1e-11);
  EXPECT_EQ(PortableSin(0), 0);
  EXPECT_EQ(PortableCos(0), 1);
  for (const double none : {kInfinity, -kInfinity, std::nan(""), 1e30}) {
    EXPECT_TRUE(std::isnan(PortableSin(none))) << none;
    EXPECT_TRUE(std::isnan(PortableCos(none))) << none;
  }
}

TEST(Truncate, TowardZeroAndNoNumbers) {
  const struct {
    double value;
    int want;
  } kValues[] = {{1.99, 1},
                 {-1.99, -1},
                 {-0.5, 0},
                 {2147483647.9, INT_MAX},
                 {2147483648.0, INT_MIN},
                 {-2147483648.9, INT_MIN},
                 {-2147483649.0, INT_MIN},
                 {std::nan(""), INT_MIN},
                 {kInfinity, INT_MIN},
                 {-kInfinity, INT_MIN}};
  for (const auto& c : kValues) EXPECT_EQ(TruncateToInt(c.value), c.want) << c.value;
  EXPECT_EQ(LimitToByteRange(-0.1F), 0);
  EXPECT_EQ(LimitToByteRange(255.5F), 255);
  EXPECT_EQ(LimitToByteRange(254.5F), 254.5F);
  EXPECT_EQ(LimitToByteRange(std::nanf("")), 0);
}

TEST(CheckedSize, Limits) {
  EXPECT_TRUE(IsPictureSize(1, 30000));
  EXPECT_FALSE(IsPictureSize(0, 1));
  EXPECT_FALSE(IsPictureSize(1, 30001));
  EXPECT_FALSE(IsPictureSize(-1, -1));
  std::size_t product = 5;
  EXPECT_TRUE(CheckedProduct(SIZE_MAX, 1, product));
  EXPECT_EQ(product, SIZE_MAX);
  EXPECT_FALSE(CheckedProduct(SIZE_MAX / 2 + 1, 2, product));
  EXPECT_TRUE(CheckedProduct(0, SIZE_MAX, product));
  EXPECT_EQ(product, 0U);
}

}  // namespace
}  // namespace tarnwick::testing
