#include "dialog/drawers/drawer_box_keys.h"

namespace tarnwick {
namespace {

bool IsPassed(HWND box, WPARAM key) {
  return (key == VK_RETURN || key == VK_ESCAPE) &&
         SendMessageA(box, CB_GETDROPPEDSTATE, 0, 0) == FALSE;
}

LRESULT CALLBACK BoxProc(HWND box, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto previous = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(box, GWLP_USERDATA));
  if (message == WM_KEYDOWN && IsPassed(box, wParam)) {
    return SendMessageA(GetParent(box), WM_KEYDOWN, wParam, lParam);
  }
  // What the key would type beeps.
  if (message == WM_CHAR && IsPassed(box, wParam)) return 0;
  const LRESULT result = CallWindowProcA(previous, box, message, wParam, lParam);
  if (message == WM_GETDLGCODE && IsPassed(box, wParam)) return result | DLGC_WANTALLKEYS;
  return result;
}

}  // namespace

void PassKeysToParent(HWND box) {
  if (box == nullptr) return;
  const LONG_PTR previous = GetWindowLongPtrA(box, GWLP_WNDPROC);
  SetWindowLongPtrA(box, GWLP_USERDATA, previous);
  SetWindowLongPtrA(box, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(BoxProc));
}

}  // namespace tarnwick
