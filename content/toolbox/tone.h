#pragma once
#include <array>
#include <initializer_list>

#include "toolbox/field.h"
#include "toolbox/maths.h"

namespace tarnwick::content {

// 0 well below `at`, 1 well above, a smooth step `width` wide between.
[[nodiscard]] constexpr float SoftThreshold(float v, float at, float width) {
  return SmoothRamp(at - 0.5F * width, at + 0.5F * width, v);
}

// Black point, white point and a bend between: gamma above 1 lightens.
struct Levels {
  float black = 0.0F;
  float white = 1.0F;
  float gamma = 1.0F;
  float outBlack = 0.0F;
  float outWhite = 1.0F;

  [[nodiscard]] float operator()(float v) const;
};

// A tone curve through given points, straight between, flat beyond the ends.
// Points in rising order of x, eight at most.
class Curve {
 public:
  struct Point {
    float x, y;
  };
  Curve(std::initializer_list<Point> points);
  [[nodiscard]] float operator()(float v) const;

 private:
  std::array<Point, 8> points_{};
  int count_ = 0;
};

// Layering, 0 black to 1 white.
[[nodiscard]] constexpr float Screen(float a, float b) {
  return 1.0F - (1.0F - a) * (1.0F - b);
}
[[nodiscard]] constexpr float Overlay(float a, float b) {
  return a < 0.5F ? 2.0F * a * b : 1.0F - 2.0F * (1.0F - a) * (1.0F - b);
}

// The values below which `share` (0..1) of a field lies, to 1/4096 of the
// range lo..hi; values outside count as its ends.
[[nodiscard]] float Percentile(const Field& field, float share, float lo, float hi);

// Stretches the field so that its `lowShare` percentile becomes 0 and its
// `highShare` percentile becomes 1; a flat field is left alone. Not limited.
void StretchTo(const Sheet& sheet, Field& field, float lowShare, float highShare);

}  // namespace tarnwick::content
