#include "controls/label_control.h"

#include <utility>

#include "controls/back_buffer.h"
#include "controls/control_classes.h"
#include "controls/control_shared.h"
#include "controls/control_window.h"
#include "controls/models/pointer_tracking.h"

namespace tarnwick {
namespace {

struct Label : TContaner {
  // Painting has, since its window is disabled. What the owner has switched off
  // stays off when the window is enabled again.
  bool isSwitchedOff = false;
};

struct CaptionLook {
  HFONT font;
  COLORREF color;
};

CaptionLook LinkLook(const TContaner& record) {
  const ControlFonts& fonts = SharedControls().fonts;
  if (record.enabled == 0) return {fonts.FontLinkBold, RGB(0, 0, 0)};
  return {fonts.FontLinkUnderlined, RGB(0, 0, 255)};
}

CaptionLook TrackingLook(const TContaner& record) {
  const ControlFonts& fonts = SharedControls().fonts;
  if (IsWindowEnabled(record.window) == FALSE) {
    return {fonts.FontCaptionHover, record.colorDisabled};
  }
  if (record.enabled == 0) {
    return {record.font != nullptr ? record.font : fonts.FontCaptionActive, record.colorActive};
  }
  const COLORREF color = record.state == kPressed   ? record.colorActive
                         : record.state == kHovered ? record.colorHover
                                                    : record.colorNormal;
  return {fonts.FontCaptionHover, color};
}

void Paint(Label& record) {
  const BackBuffer buffer(record.window);
  if (buffer.Dc() == nullptr) return;
  const bool isTracking = record.style == kTrackingLabel;
  if (!isTracking) {
    FillRect(buffer.Dc(), &buffer.Client(), SharedControls().faceBrush);
  } else if (record.backBitmap != nullptr) {
    DrawBitmap(buffer.Dc(), record.backBitmap, 0, 0, record.width, record.height, record.bitmapX,
               record.bitmapY);
  } else {
    FillRect(buffer.Dc(), &buffer.Client(), record.backBrush);
  }
  const CaptionLook look = isTracking ? TrackingLook(record) : LinkLook(record);
  if (isTracking && record.enabled != 0 && IsWindowEnabled(record.window) == FALSE) {
    record.enabled = 0;
    record.isSwitchedOff = true;
  }
  const Selected font(buffer.Dc(), look.font);
  SetTextColor(buffer.Dc(), look.color);
  SetBkMode(buffer.Dc(), TRANSPARENT);
  RECT client = buffer.Client();
  const UINT align = record.leftAligned != 0 ? DT_LEFT : DT_CENTER;
  TEXTMETRICA metric{};
  GetTextMetricsA(buffer.Dc(), &metric);
  // A line too high for the label loses of what is blank above its letters first.
  const LONG excess = metric.tmHeight - client.bottom;
  if (excess > 0) client.top = -(excess + 1) / 2;
  DrawTextA(buffer.Dc(), record.text.c_str(), -1, &client,
            align | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

template <typename Event>
void Track(Label& record, const Event& event) {
  LabelTracking tracking{record.state};
  const TrackingStep step = event(tracking);
  record.state = tracking.state;
  if (step.release) ReleaseCapture();
  if (step.capture) SetCapture(record.window);
  if (step.redraw) RedrawControl(record.window);
  if (step.notify) PostControlCommand(record);
}

LRESULT HandleLabel(Label& record, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SETCURSOR:
      if (record.enabled == 0) break;
      SetCursor(SharedControls().hand);
      return TRUE;
    case WM_MOUSEMOVE: {
      if (IgnoresPointer(record) || record.style != kTrackingLabel) break;
      const PointerPlace p = PointerOf(lParam);
      // Another window took the pointer away meanwhile: it has come anew.
      if (record.state == kHovered && GetCapture() != record.window) record.state = kIdle;
      Track(record, [&](LabelTracking& t) {
        return t.Move(IsInside(p.x, p.y, record.width, record.height));
      });
      return 0;
    }
    case WM_LBUTTONDOWN:
      SetFocus(record.window);
      return 0;
    case WM_LBUTTONUP:
      if (IgnoresPointer(record)) break;
      Track(record, [](LabelTracking& t) { return t.Release(); });
      return 0;
    case WM_COMMAND:
      PostMessageA(GetParent(record.window), message, wParam, lParam);
      return 0;
    case WM_ENABLE:
      if (wParam == 0 && record.state == kHovered) record.state = kIdle;
      if (wParam != 0 && std::exchange(record.isSwitchedOff, false)) record.enabled = 1;
      RedrawControl(record.window);
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
      Paint(record);
      return 0;
    default:
      break;
  }
  return DefWindowProcA(record.window, message, wParam, lParam);
}

}  // namespace

LRESULT CALLBACK LabelProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return ControlProc<Label, HandleLabel>(window, message, wParam, lParam);
}

TContaner* CreateLabelControl(int x, int y, int width, int height, HWND parent, int id,
                              const char* text, bool enabled, bool leftAligned) {
  const HWND window = CreateWindowExA(
      0, kLabelClass, "", WS_CHILD | WS_VISIBLE, x, y, width, height, parent,
      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), SharedControls().instance, nullptr);
  auto* const record = GetControlRecord<TContaner>(window, kLabelClass);
  if (record == nullptr) return nullptr;
  record->x = x;
  record->y = y;
  record->kind = kLabelCaption;
  record->enabled = enabled ? 1 : 0;
  record->leftAligned = leftAligned ? 1 : 0;
  if (text != nullptr) record->text = text;
  RedrawControl(window);
  return record;
}

}  // namespace tarnwick
