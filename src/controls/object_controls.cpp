#include "controls/object_controls.h"

#include "controls/control_classes.h"
#include "controls/control_shared.h"

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

bool TPickerControl::Create(HWND parent, int windowId, std::uint8_t windowKind, int left, int top,
                            int w, int h, DWORD exStyle) {
  return Take(CreateWindowExA(exStyle, kPickerClass, "",
                              WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, left, top,
                              w, h, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(windowId)),
                              SharedControls().instance, nullptr),
              windowId, windowKind);
}

bool TPickerControl::Attach(HWND dialog, int windowId, std::uint8_t windowKind) {
  return Take(GetDlgItem(dialog, windowId), windowId, windowKind);
}

bool TPickerControl::Take(HWND control, int windowId, std::uint8_t windowKind) {
  if (control == nullptr) return false;
  id = windowId;
  kind = windowKind;
  GetClientRect(control, &client);
  width = client.right;
  height = client.bottom;
  AttachTo(control);
  return true;
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
