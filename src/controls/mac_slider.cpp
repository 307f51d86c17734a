#include "controls/mac_slider.h"

#include <commctrl.h>

#include <string>

#include "controls/control_window.h"
#include "controls/slider_paint.h"

namespace tarnwick {
namespace {

constexpr int kTrackbarId = 333;
constexpr LPARAM kPageSize = 10;

HWND Parent(const TMacSlider& slider) {
  return GetParent(slider.window);
}

void ShowInEdit(const TMacSlider& slider, int value) {
  if (slider.editId == 0) return;
  SetDlgItemTextA(Parent(slider), slider.editId, std::to_string(value).c_str());
}

void ShowInSpin(const TMacSlider& slider, int value) {
  if (slider.spinId == 0) return;
  SendDlgItemMessageA(Parent(slider), slider.spinId, UDM_SETPOS, 0,
                      MAKELPARAM(static_cast<short>(value), 0));
}

void OnTrackbar(TMacSlider& slider, WPARAM wParam) {
  int position = static_cast<int>(SendMessageA(slider.trackbar, TBM_GETPOS, 0, 0));
  if (slider.snap != 0) {
    const int snapped = Snapped(position, slider.snapValue, slider.snapDistance);
    if (snapped != position) SendMessageA(slider.trackbar, TBM_SETPOS, TRUE, snapped);
    position = snapped;
  }
  ShowInEdit(slider, position);
  ShowInSpin(slider, position);
  if (LOWORD(wParam) == TB_ENDTRACK) {
    slider.value = static_cast<float>(position);
    SendControlCommand(slider, 1);
  }
}

// The value under the pointer, on all three controls.
void Follow(TMacSlider& slider, LPARAM lParam) {
  const PointerPlace p = PointerOf(lParam);
  const bool isVertical = slider.orientation == kVertical;
  const float value =
      ValueAt(slider.range, isVertical ? p.y : p.x, isVertical ? slider.height : slider.width);
  SetSliderValue(slider, value, false);
}

LRESULT OnOwnPointer(TMacSlider& slider, UINT message, WPARAM wParam, LPARAM lParam) {
  // The owner may destroy the slider when it is told.
  const HWND window = slider.window;
  switch (message) {
    case WM_LBUTTONDOWN:
      SetCapture(slider.window);
      Follow(slider, lParam);
      break;
    case WM_MOUSEMOVE:
      if (wParam != MK_LBUTTON) break;
      Follow(slider, lParam);
      SendMessageA(Parent(slider), WM_HSCROLL, 0, 0);
      if (IsWindow(window) != FALSE && slider.continuous != 0) SendControlCommand(slider, 1);
      break;
    case WM_LBUTTONUP:
      ReleaseCapture();
      Follow(slider, lParam);
      SendMessageA(Parent(slider), WM_HSCROLL, 0, 0);
      if (IsWindow(window) != FALSE) SendControlCommand(slider, 0);
      break;
    default:
      if (slider.rightPress != 0) SendMessageA(Parent(slider), WM_RBUTTONDOWN, 0, 0);
      break;
  }
  return 0;
}

void EnableAll(TMacSlider& slider, bool isOn) {
  slider.enabled = isOn ? 1 : 0;
  if (slider.trackbar != nullptr) EnableWindow(slider.trackbar, isOn ? TRUE : FALSE);
  for (const int id : {slider.editId, slider.spinId}) {
    const HWND buddy = id != 0 ? GetDlgItem(Parent(slider), id) : nullptr;
    if (buddy != nullptr) EnableWindow(buddy, isOn ? TRUE : FALSE);
  }
  if (slider.trackbar == nullptr) RedrawControl(slider.window);
}

LRESULT HandleSlider(TMacSlider& slider, UINT message, WPARAM wParam, LPARAM lParam) {
  return slider.WindowProc(slider.window, message, wParam, lParam);
}

}  // namespace

LRESULT TMacSlider::WindowProc(HWND target, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_HSCROLL:
      if (orientation == kTrackbar && trackbar != nullptr) OnTrackbar(*this, wParam);
      return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_MOUSEMOVE:
    case WM_RBUTTONDOWN:
      if (orientation == kTrackbar || IgnoresPointer(*this)) break;
      return OnOwnPointer(*this, message, wParam, lParam);
    case WM_ENABLE:
      EnableAll(*this, wParam != 0);
      return 0;
    case WM_SIZE:
      if (trackbar != nullptr) MoveWindow(trackbar, 0, 0, width, height, TRUE);
      return 0;
    case WM_ERASEBKGND:
      if (orientation == kTrackbar) break;
      return 1;
    case WM_PAINT:
      if (orientation == kTrackbar) break;
      PaintSlider(*this);
      return 0;
    default:
      break;
  }
  return DefWindowProcA(target, message, wParam, lParam);
}

LRESULT CALLBACK MacSliderProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return ControlProc<TMacSlider, HandleSlider>(window, message, wParam, lParam);
}

void BindSlider(TMacSlider& slider) {
  if (slider.trackbar != nullptr) return;
  slider.trackbar = CreateWindowExA(
      0, TRACKBAR_CLASSA, "", WS_CHILD | WS_VISIBLE | TBS_NOTICKS, 0, 0, slider.width,
      slider.height, slider.window, reinterpret_cast<HMENU>(static_cast<INT_PTR>(kTrackbarId)),
      reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(slider.window, GWLP_HINSTANCE)), nullptr);
  // Without one it goes on as a gauge.
  slider.orientation = slider.trackbar != nullptr ? kTrackbar : kHorizontal;
  slider.trackbarId = slider.trackbar != nullptr ? kTrackbarId : 0;
}

void SetSliderRange(TMacSlider& slider, float minimum, float maximum) {
  slider.range.minimum = minimum;
  slider.range.maximum = maximum;
  const auto low = static_cast<short>(static_cast<int>(minimum));
  const auto high = static_cast<short>(static_cast<int>(maximum));
  if (slider.spinId != 0) {
    const HWND edit = slider.editId != 0 ? GetDlgItem(Parent(slider), slider.editId) : nullptr;
    SendDlgItemMessageA(Parent(slider), slider.spinId, UDM_SETBUDDY, reinterpret_cast<WPARAM>(edit),
                        0);
    SendDlgItemMessageA(Parent(slider), slider.spinId, UDM_SETRANGE, 0, MAKELPARAM(high, low));
  }
  if (slider.trackbar == nullptr) return RedrawControl(slider.window);
  SendMessageA(slider.trackbar, TBM_SETRANGE, TRUE, MAKELPARAM(low, high));
  SendMessageA(slider.trackbar, TBM_SETPAGESIZE, 0, kPageSize);
}

void SetSliderLimits(TMacSlider& slider, float low, float high, bool on) {
  slider.range.limited = on;
  if (!on) return;
  slider.range.limitLow = low;
  slider.range.limitHigh = high;
  RedrawControl(slider.window);
}

void SetSliderValue(TMacSlider& slider, float value, bool keepSpin) {
  slider.value = WithinLimits(slider.range, value);
  const int shown = static_cast<int>(slider.value);
  if (slider.trackbar != nullptr) {
    SendMessageA(slider.trackbar, TBM_SETPOS, TRUE, shown);
  } else {
    RedrawControl(slider.window);
  }
  ShowInEdit(slider, shown);
  if (!keepSpin) ShowInSpin(slider, shown);
}

}  // namespace tarnwick
