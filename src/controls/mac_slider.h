#pragma once
#include "controls/control_record.h"
#include "controls/models/slider_values.h"

namespace tarnwick {

enum SliderOrientation : std::uint8_t { kHorizontal = 0, kVertical = 1, kTrackbar = 2 };
enum SliderLook : std::uint8_t { kGaugeLook = 0, kLineLook = 1 };

// "Mac Slider CPP": a numeric slider. By itself it paints a gauge and is dragged;
// bound, it hosts a trackbar of the system and keeps it, an edit field and an
// up-down beside it in step.
//
// Tells its parent by WM_HSCROLL while it moves (own painting) and by WM_COMMAND at
// the end, with 1 in lParam where a trackbar was or a drag goes on. While a trackbar
// is dragged, edit field and up-down follow, but `value` waits for the end.
struct TMacSlider : TContaner {
  float value = 0;
  SliderRange range;
  float step = 1;
  std::uint8_t orientation = kHorizontal;
  std::uint8_t continuous = 0;  // WM_COMMAND while dragging too
  std::uint8_t rightPress = 0;  // a right press goes on to the parent
  std::uint8_t look = kGaugeLook;
  std::uint8_t snap = 0;
  float snapValue = 0;
  float snapDistance = 10;
  std::int32_t editId = 0;  // in the parent; 0: none
  std::int32_t spinId = 0;
  std::int32_t trackbarId = 0;
  HWND trackbar = nullptr;

  virtual ~TMacSlider() = default;
  virtual LRESULT WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
};

LRESULT CALLBACK MacSliderProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Puts a trackbar into the slider. First of all; then the ids, the range, values.
void BindSlider(TMacSlider& slider);
// Also makes the edit field the up-down's buddy.
void SetSliderRange(TMacSlider& slider, float minimum, float maximum);
void SetSliderLimits(TMacSlider& slider, float low, float high, bool on);
// All three show the value, truncated. `keepSpin` leaves the up-down alone: for a
// change that comes from there.
void SetSliderValue(TMacSlider& slider, float value, bool keepSpin);

}  // namespace tarnwick
