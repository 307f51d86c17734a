#include "controls/control_page.h"

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <utility>

#include "controls/control_classes.h"
#include "controls/control_shared.h"

namespace tarnwick {
namespace {

constexpr char kPageClass[] = "TestPage";

std::vector<ControlPage::Message>& Noted() {
  static std::vector<ControlPage::Message> messages;
  return messages;
}

LRESULT CALLBACK PageProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  // Notes of edit fields and up-downs are theirs.
  if ((message == WM_COMMAND && HIWORD(wParam) == 0) || message == WM_HSCROLL) {
    Noted().push_back({message, wParam, lParam});
    return 0;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

ControlPage::ControlPage() {
  const HINSTANCE instance = GetModuleHandleA(nullptr);
  INITCOMMONCONTROLSEX common = {sizeof common, ICC_BAR_CLASSES | ICC_UPDOWN_CLASS};
  InitCommonControlsEx(&common);
  MakeSharedControls(instance);
  SharedControls().fonts = MakeControlFonts(96);
  EXPECT_TRUE(RegisterControlClasses(instance));
  WNDCLASSA definition{};
  definition.lpfnWndProc = PageProc;
  definition.hInstance = instance;
  // Not the shared brush: it would go with the class.
  definition.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1));
  definition.lpszClassName = kPageClass;
  RegisterClassA(&definition);
  window_ = CreateWindowExA(0, kPageClass, "Controls", WS_POPUP, 20, 20, 600, 440, nullptr, nullptr,
                            instance, nullptr);
  EXPECT_NE(window_, nullptr);
  // Not activated: without a window manager that takes seconds.
  ShowWindow(window_, SW_SHOWNOACTIVATE);
  PumpMessages();
  Noted().clear();
}

ControlPage::~ControlPage() {
  DestroyWindow(window_);
  PumpMessages();
  const HINSTANCE instance = GetModuleHandleA(nullptr);
  UnregisterControlClasses(instance);
  UnregisterClassA(kPageClass, instance);
  FreeSharedControls();
}

HWND ControlPage::Add(const char* className, int id, int x, int y, int width, int height,
                      DWORD style) {
  const HWND child = CreateWindowExA(
      0, className, "", WS_CHILD | WS_VISIBLE | style, x, y, width, height, window_,
      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleA(nullptr), nullptr);
  EXPECT_NE(child, nullptr) << className;
  PumpMessages();
  return child;
}

std::vector<ControlPage::Message> ControlPage::TakeMessages() {
  PumpMessages();
  return std::exchange(Noted(), {});
}

std::string ControlPage::TextOf(int id) const {
  char text[64] = {};
  GetDlgItemTextA(window_, id, text, sizeof text);
  return text;
}

COLORREF ControlPage::PixelOf(HWND child, int x, int y) {
  PumpMessages();
  const HDC dc = GetDC(child);
  const COLORREF color = GetPixel(dc, x, y);
  ReleaseDC(child, dc);
  return color;
}

void PumpMessages() {
  MSG message;
  while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
}

void Point(HWND window, UINT message, int x, int y, WPARAM buttons) {
  SendMessageA(window, message, buttons, MAKELPARAM(x, y));
}

}  // namespace tarnwick
