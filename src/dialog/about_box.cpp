#include "dialog/about_box.h"

#include "resources/dialog_ids.h"

namespace tarnwick {
namespace {

// The product's name stands out: the box's own font, half as large again and bold.
HFONT MakeHeadingFont(HWND box) {
  LOGFONTA font{};
  const auto own = reinterpret_cast<HFONT>(SendMessageA(box, WM_GETFONT, 0, 0));
  if (own == nullptr || GetObjectA(own, sizeof font, &font) == 0) return nullptr;
  font.lfHeight = font.lfHeight * 3 / 2;
  font.lfWidth = 0;
  font.lfWeight = FW_BOLD;
  return CreateFontIndirectA(&font);
}

INT_PTR CALLBACK AboutProc(HWND box, UINT message, WPARAM wParam, LPARAM) {
  switch (message) {
    case WM_INITDIALOG: {
      SetDlgItemTextA(box, TARNWICK_ABOUT_VERSION, "Version " TARNWICK_VERSION);
      const HFONT heading = MakeHeadingFont(box);
      SetWindowLongPtrA(box, DWLP_USER, reinterpret_cast<LONG_PTR>(heading));
      SendDlgItemMessageA(box, TARNWICK_ABOUT_NAME, WM_SETFONT, reinterpret_cast<WPARAM>(heading),
                          TRUE);
      return TRUE;
    }
    case WM_COMMAND:
      if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL) EndDialog(box, LOWORD(wParam));
      return TRUE;
    case WM_DESTROY: {
      const LONG_PTR heading = GetWindowLongPtrA(box, DWLP_USER);
      if (heading != 0) DeleteObject(reinterpret_cast<HFONT>(heading));
      return TRUE;
    }
    default:
      return FALSE;
  }
}

}  // namespace

void ShowAboutDialog(HINSTANCE module, HWND owner) {
  DialogBoxParamA(module, MAKEINTRESOURCEA(TARNWICK_ABOUT_BOX), owner, AboutProc, 0);
}

}  // namespace tarnwick
