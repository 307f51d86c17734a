#pragma once
#include <windows.h>

#include <new>

#include "controls/control_record.h"

namespace tarnwick {

// The window procedure of a control class whose windows carry a `Record`, a
// TContaner with fields of its own. `Handle` answers the messages.
//
// A creator may pass a record of its own in lpCreateParams; the window takes it
// over. Without memory for one the window does not come into being.
template <typename Record, LRESULT (*Handle)(Record&, UINT, WPARAM, LPARAM)>
LRESULT CALLBACK ControlProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_CREATE) {
    const auto* const creation = reinterpret_cast<const CREATESTRUCTA*>(lParam);
    auto* record = static_cast<Record*>(creation->lpCreateParams);
    if (record == nullptr) record = new (std::nothrow) Record;
    if (record == nullptr) return -1;
    RECT client{};
    GetClientRect(window, &client);
    record->window = window;
    record->width = client.right;
    record->height = client.bottom;
    record->id = static_cast<std::int32_t>(GetWindowLongPtrA(window, GWLP_ID));
    SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(record));
    return Handle(*record, message, wParam, lParam);
  }
  auto* const record = reinterpret_cast<Record*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  if (record == nullptr) return DefWindowProcA(window, message, wParam, lParam);
  if (message == WM_NCDESTROY) {
    SetWindowLongPtrA(window, GWLP_USERDATA, 0);
    delete record;
    return DefWindowProcA(window, message, wParam, lParam);
  }
  if (message == WM_SIZE) {
    record->width = LOWORD(lParam);
    record->height = HIWORD(lParam);
  }
  return Handle(*record, message, wParam, lParam);
}

// A control that its owner has switched off ignores the pointer. If it holds it, it
// lets it go: no release would ever do so.
[[nodiscard]] inline bool IgnoresPointer(const TContaner& record) {
  if (record.enabled != 0) return false;
  if (GetCapture() == record.window) ReleaseCapture();
  return true;
}

// Where the pointer is, in client coordinates; negative outside to the left or top.
struct PointerPlace {
  int x, y;
};
[[nodiscard]] inline PointerPlace PointerOf(LPARAM lParam) {
  return {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
}

// Whether that is in the window's client area.
[[nodiscard]] inline bool HoldsPointer(HWND window, LPARAM lParam) {
  RECT client{};
  GetClientRect(window, &client);
  const PointerPlace p = PointerOf(lParam);
  return PtInRect(&client, {p.x, p.y}) != FALSE;
}

}  // namespace tarnwick
