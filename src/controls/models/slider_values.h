#pragma once

namespace tarnwick {

// A slider's numbers, without a window.

struct SliderRange {
  float minimum = 0;
  float maximum = 100;
  bool limited = false;  // the tighter bounds below count
  float limitLow = 0;
  float limitHigh = 0;
};

// Into the tighter bounds, if they count; the low one first.
[[nodiscard]] float WithinLimits(const SliderRange& range, float value);

// What a pointer `position` along a gauge of `length` pixels stands for. Five pixels
// at each end are margins.
[[nodiscard]] float ValueAt(const SliderRange& range, int position, int length);

// Where along the gauge a value lies, in pixels.
[[nodiscard]] int PositionOf(const SliderRange& range, float value, int length);

// A trackbar's position, drawn to `snapValue` when it is nearer than `distance`.
[[nodiscard]] int Snapped(int position, float snapValue, float distance);

}  // namespace tarnwick
