#include "controls/object_controls.h"

namespace tarnwick {
namespace {

// Kept in a window's user data.
LRESULT Dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* const object = reinterpret_cast<WindowObject*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  if (object == nullptr) return DefWindowProcA(window, message, wParam, lParam);
  if (message == WM_NCDESTROY) {
    // The handle may become another window's; the object lets go of it.
    SetWindowLongPtrA(window, GWLP_USERDATA, 0);
    object->window = nullptr;
  }
  return object->WindowProc(window, message, wParam, lParam);
}

}  // namespace

LRESULT WindowObject::WindowProc(HWND target, UINT message, WPARAM wParam, LPARAM lParam) {
  return DefWindowProcA(target, message, wParam, lParam);
}

void WindowObject::AttachTo(HWND target) {
  if (window != nullptr && IsWindow(window)) SetWindowLongPtrA(window, GWLP_USERDATA, 0);
  window = target;
  if (window != nullptr) {
    SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  }
}

LRESULT CALLBACK PickerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return Dispatch(window, message, wParam, lParam);
}

LRESULT CALLBACK DrawerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return Dispatch(window, message, wParam, lParam);
}

LRESULT CALLBACK FilmstripProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return Dispatch(window, message, wParam, lParam);
}

}  // namespace tarnwick
