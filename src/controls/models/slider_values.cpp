#include "controls/models/slider_values.h"

#include <algorithm>
#include <cmath>

namespace tarnwick {
namespace {

constexpr int kMargin = 5;

float UnitOf(const SliderRange& range, int length) {
  return static_cast<float>(length - 2 * kMargin) / (range.maximum - range.minimum);
}

}  // namespace

float WithinLimits(const SliderRange& range, float value) {
  if (!range.limited) return value;
  if (value < range.limitLow) return range.limitLow;
  return value > range.limitHigh ? range.limitHigh : value;
}

float ValueAt(const SliderRange& range, int position, int length) {
  const float value =
      range.minimum + static_cast<float>(position - kMargin) / UnitOf(range, length);
  return WithinLimits(range, std::max(range.minimum, std::min(range.maximum, value)));
}

int PositionOf(const SliderRange& range, float value, int length) {
  return static_cast<int>(
      std::lround(UnitOf(range, length) * (value - range.minimum) + static_cast<float>(kMargin)));
}

int Snapped(int position, float snapValue, float distance) {
  const float apart = std::fabs(static_cast<float>(position) - snapValue);
  return apart < distance ? static_cast<int>(snapValue) : position;
}

}  // namespace tarnwick
