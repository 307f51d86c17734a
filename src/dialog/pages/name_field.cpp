#include "dialog/pages/name_field.h"

namespace tarnwick {
namespace {

// There from the second press to its release.
constexpr char kPressedTwice[] = "TarnwickPressedTwice";

LRESULT CALLBACK NameProc(HWND field, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto previous = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(field, GWLP_USERDATA));
  switch (message) {
    case WM_LBUTTONDBLCLK:
      // Held until the release: whatever opens must not get that.
      SetCapture(field);
      SetPropA(field, kPressedTwice, reinterpret_cast<HANDLE>(static_cast<INT_PTR>(1)));
      return 0;
    case WM_LBUTTONUP:
      if (RemovePropA(field, kPressedTwice) == nullptr) break;
      ReleaseCapture();
      PostMessageA(GetParent(field), WM_COMMAND,
                   MAKEWPARAM(GetDlgCtrlID(field), kNameDoubleClicked),
                   reinterpret_cast<LPARAM>(field));
      return 0;
    case WM_CAPTURECHANGED:
    case WM_NCDESTROY:
      RemovePropA(field, kPressedTwice);
      break;
    default:
      break;
  }
  return CallWindowProcA(previous, field, message, wParam, lParam);
}

}  // namespace

void TellDoubleClicks(HWND field) {
  if (field == nullptr) return;
  const LONG_PTR previous = GetWindowLongPtrA(field, GWLP_WNDPROC);
  SetWindowLongPtrA(field, GWLP_USERDATA, previous);
  SetWindowLongPtrA(field, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(NameProc));
}

}  // namespace tarnwick
