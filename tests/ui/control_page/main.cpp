// tarnwick-control-page: every live control on one page, for the eye and for
// scenarios with a real pointer and real keys.
//
//   tarnwick-control-page LOG
//
// LOG is made anew and grows by a line for each thing that a control tells.
#include <windows.h>

#include <commctrl.h>

#include <cstdlib>
#include <fstream>

#include "controls/control_classes.h"
#include "controls/control_shared.h"
#include "controls/mac_slider.h"
#include "ui/control_page/page_controls.h"
#include "ui/control_page/page_ids.h"
#include "ui/control_page/page_log.h"

namespace {

using namespace tarnwick;          // NOLINT(google-build-using-namespace): its own program
using namespace tarnwick::testui;  // NOLINT(google-build-using-namespace)

PageLog& Log() {
  static PageLog log(__argc > 1 ? __argv[1] : "control-page.log");
  return log;
}

TMacSlider* SliderOfSpin(HWND page, HWND spin) {
  return GetControlRecord<TMacSlider>(GetDlgItem(page, GetDlgCtrlID(spin) - 2), kSliderClass);
}

void TakeTyped(HWND page, int editId) {
  auto* const slider = GetControlRecord<TMacSlider>(GetDlgItem(page, editId - 1), kSliderClass);
  if (slider == nullptr) return;
  char text[32] = {};
  GetDlgItemTextA(page, editId, text, sizeof text);
  SetSliderValue(*slider, static_cast<float>(std::atof(text)), false);
}

LRESULT CALLBACK PageProc(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      if (LOWORD(wParam) == kDisableAll) {
        EnablePage(page, IsDlgButtonChecked(page, kDisableAll) == BST_UNCHECKED);
        return 0;
      }
      // What fields tell while they are written into is no news.
      if (HIWORD(wParam) == EN_CHANGE || HIWORD(wParam) == EN_UPDATE) return 0;
      if (HIWORD(wParam) == EN_KILLFOCUS) TakeTyped(page, LOWORD(wParam));
      Log().Command(page, wParam, lParam);
      return 0;
    case WM_HSCROLL:
      Log().Line("hscroll " + std::to_string(wParam) + ' ' + std::to_string(lParam));
      return 0;
    case WM_VSCROLL:
      if (TMacSlider* slider = SliderOfSpin(page, reinterpret_cast<HWND>(lParam))) {
        SetSliderValue(*slider, static_cast<short>(HIWORD(wParam)), true);
      }
      return 0;
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    default:
      return DefWindowProcA(page, message, wParam, lParam);
  }
}

HWND OpenPage(HINSTANCE instance, int dpi) {
  WNDCLASSA definition{};
  definition.lpfnWndProc = PageProc;
  definition.hInstance = instance;
  definition.hCursor = LoadCursorA(nullptr, MAKEINTRESOURCEA(32512));
  definition.hbrBackground = SharedControls().faceBrush;
  definition.lpszClassName = "TarnwickControlPage";
  RegisterClassA(&definition);
  RECT frame = {0, 0, MulDiv(480, dpi, 96), MulDiv(312, dpi, 96)};
  constexpr DWORD kStyle = WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
  AdjustWindowRect(&frame, kStyle, FALSE);
  return CreateWindowExA(0, definition.lpszClassName, "Control page", kStyle, 40, 40,
                         frame.right - frame.left, frame.bottom - frame.top, nullptr, nullptr,
                         instance, nullptr);
}

// F11 asks for a mark in the log once all is done and painted that came before it.
void Serve(HWND page) {
  bool isAsked = false;
  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) {
    isAsked = isAsked || (message.message == WM_KEYDOWN && message.wParam == VK_F11);
    if (IsDialogMessageA(page, &message) == FALSE) {
      TranslateMessage(&message);
      DispatchMessageA(&message);
    }
    if (!isAsked || PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE) != FALSE) continue;
    Log().Line("mark");
    isAsked = false;
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc > 1) std::ofstream(argv[1], std::ios::trunc);
  SetProcessDPIAware();
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
  ReleaseDC(nullptr, screen);
  INITCOMMONCONTROLSEX common = {sizeof common, ICC_BAR_CLASSES | ICC_UPDOWN_CLASS};
  InitCommonControlsEx(&common);
  const HINSTANCE instance = GetModuleHandleA(nullptr);
  MakeSharedControls(instance);
  SharedControls().fonts = MakeControlFonts(dpi);
  if (!RegisterControlClasses(instance)) return 1;
  const HWND page = OpenPage(instance, dpi);
  if (page == nullptr) return 1;
  FillPage(page, dpi);
  ShowWindow(page, SW_SHOW);
  Serve(page);
  UnregisterControlClasses(instance);
  FreeSharedControls();
  return 0;
}
