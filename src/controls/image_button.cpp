#include "controls/image_button.h"

#include "controls/back_buffer.h"
#include "controls/control_window.h"

namespace tarnwick {
namespace {

bool IsChecked(HWND button) {
  return SendMessageA(button, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

void Show(HWND button, HBITMAP bitmap) {
  SendMessageA(button, BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap));
}

void OnMove(ImageButtonState& state, HWND button, LPARAM lParam) {
  if (HoldsPointer(button, lParam)) {
    // Without the capture, another window took it meanwhile: the pointer comes anew.
    if (state.inside != 0 && GetCapture() == button) return;
    SetCapture(button);
    state.inside = 1;
    Show(button, ImageOf(state, true, IsChecked(button), true));
    return;
  }
  ReleaseCapture();
  state.inside = 0;
  Show(button, ImageOf(state, true, IsChecked(button), false));
}

// The system greys a disabled button's bitmap until nothing of it is left but its
// outline; ours is grey by itself and goes on top, where the system has put it.
void PaintDisabled(const ImageButtonState& state, HWND button) {
  const HBITMAP bitmap = ImageOf(state, false, IsChecked(button), false);
  BITMAP size{};
  if (bitmap == nullptr || GetObjectA(bitmap, sizeof size, &size) == 0) return;
  RECT client{};
  GetClientRect(button, &client);
  const HDC dc = GetDC(button);
  DrawBitmap(dc, bitmap, (client.right - size.bmWidth) / 2, (client.bottom - size.bmHeight) / 2,
             size.bmWidth, size.bmHeight, 0, 0);
  ReleaseDC(button, dc);
}

LRESULT CALLBACK ImageButtonProc(HWND button, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* const state = reinterpret_cast<ImageButtonState*>(GetWindowLongPtrA(button, GWLP_USERDATA));
  if (state == nullptr) return DefWindowProcA(button, message, wParam, lParam);
  switch (message) {
    case WM_MOUSEMOVE:
      OnMove(*state, button, lParam);
      break;
    case WM_LBUTTONUP:
      state->inside = 0;
      break;
    case WM_ENABLE:
      if (state->disabledBitmap != nullptr) {
        Show(button, ImageOf(*state, wParam != 0, IsChecked(button), false));
      }
      break;
    case BM_SETCHECK:
      if (state->checkedBitmap == nullptr) break;
      if (IsWindowEnabled(button) != FALSE) {
        Show(button, ImageOf(*state, true, wParam == BST_CHECKED, false));
      } else {
        // The check state as it stood before: the system's procedure comes last.
        Show(button, ImageOf(*state, false, IsChecked(button), false));
      }
      break;
    default:
      break;
  }
  const LRESULT result = CallWindowProcA(state->previousProc, button, message, wParam, lParam);
  if (message == WM_PAINT && state->disabledBitmap != nullptr && IsWindowEnabled(button) == FALSE) {
    PaintDisabled(*state, button);
  }
  return result;
}

}  // namespace

HBITMAP ImageOf(const ImageButtonState& state, bool isEnabled, bool isChecked, bool isHot) {
  const bool hasChecked = isChecked && state.checkedBitmap != nullptr;
  if (!isEnabled) {
    if (hasChecked && state.checkedDisabledBitmap != nullptr) return state.checkedDisabledBitmap;
    if (state.disabledBitmap != nullptr) return state.disabledBitmap;
  }
  if (isHot) {
    return hasChecked && state.checkedHotBitmap != nullptr ? state.checkedHotBitmap
                                                           : state.hotBitmap;
  }
  return hasChecked ? state.checkedBitmap : state.normalBitmap;
}

void SkinStockButton(ImageButtonState& state, HWND button, HBITMAP normalBitmap, HBITMAP hotBitmap,
                     HBITMAP disabledBitmap, HBITMAP checkedBitmap, HBITMAP checkedHotBitmap,
                     HBITMAP checkedDisabledBitmap) {
  if (button == nullptr) return;
  state = {0,
           hotBitmap,
           normalBitmap,
           disabledBitmap,
           checkedBitmap,
           checkedHotBitmap,
           checkedDisabledBitmap,
           state.previousProc};
  Show(button, ImageOf(state, IsWindowEnabled(button) != FALSE, IsChecked(button), false));
  const auto present = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(button, GWLP_WNDPROC));
  SetWindowLongPtrA(button, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&state));
  if (present == ImageButtonProc) return;
  state.previousProc = present;
  SetWindowLongPtrA(button, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ImageButtonProc));
}

}  // namespace tarnwick
