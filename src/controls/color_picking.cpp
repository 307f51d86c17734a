// The pickers behind a swatch: the host's, then the system's.
#include <windows.h>

#include <commdlg.h>

#include "controls/color_swatch.h"

namespace tarnwick {
namespace {

// An owner that does not paint leaves the dialog blank; it is shown and drawn by
// force.
UINT_PTR CALLBACK ShowAnyway(HWND dialog, UINT message, WPARAM, LPARAM) {
  if (message != WM_INITDIALOG) return 0;
  SetWindowLongPtrA(dialog, GWL_STYLE, GetWindowLongPtrA(dialog, GWL_STYLE) | WS_VISIBLE);
  InvalidateRect(dialog, nullptr, TRUE);
  UpdateWindow(dialog);
  PostMessageA(dialog, WM_PAINT, 0, 0);
  SetFocus(dialog);
  RECT frame{};
  GetWindowRect(dialog, &frame);
  MoveWindow(dialog, 0, 0, 1, 1, TRUE);
  MoveWindow(dialog, frame.left, frame.top, frame.right - frame.left, frame.bottom - frame.top,
             TRUE);
  return 0;
}

bool ChooseInSystemDialog(HWND owner, std::array<COLORREF, 16>& customColors, COLORREF& color) {
  CHOOSECOLORA choice{};
  choice.lStructSize = sizeof choice;
  choice.hwndOwner = owner;
  choice.rgbResult = color;
  choice.lpCustColors = customColors.data();
  choice.Flags = CC_RGBINIT | CC_ENABLEHOOK;
  choice.lpfnHook = ShowAnyway;
  if (ChooseColorA(&choice) == FALSE) return false;
  color = choice.rgbResult;
  return true;
}

}  // namespace

ColorPicking& ColorPickers() {
  static ColorPicking pickers;
  return pickers;
}

bool PickColor(ColorSwatch& swatch, COLORREF& color) {
  const ColorPicking& pickers = ColorPickers();
  if (!pickers.host) return ChooseInSystemDialog(swatch.window, swatch.customColors, color);
  const Choice choice = pickers.host(color);
  if (choice != Choice::kUnavailable) return choice == Choice::kChosen;
  auto& customColors =
      pickers.fallbackCustomColors != nullptr ? *pickers.fallbackCustomColors : swatch.customColors;
  const HWND owner = pickers.fallbackOwner != nullptr ? pickers.fallbackOwner : swatch.window;
  return ChooseInSystemDialog(owner, customColors, color);
}

}  // namespace tarnwick
