#include "controls/link_control.h"

#include <array>

#include "controls/back_buffer.h"
#include "controls/control_shared.h"
#include "controls/control_window.h"

namespace tarnwick {
namespace {

void TakeFont(LinkRecord& link, HFONT font) {
  link.font = font;
  if (link.underlined != nullptr) DeleteObject(link.underlined);
  link.underlined = nullptr;
  LOGFONTA look{};
  if (font == nullptr || GetObjectA(font, sizeof look, &look) == 0) return;
  look.lfUnderline = TRUE;
  link.underlined = CreateFontIndirectA(&look);
}

void Paint(const LinkRecord& link) {
  const BackBuffer buffer(link.window);
  if (buffer.Dc() == nullptr) return;
  FillRect(buffer.Dc(), &buffer.Client(), GetSysColorBrush(COLOR_BTNFACE));
  std::array<char, 128> text{};
  GetWindowTextA(link.window, text.data(), static_cast<int>(text.size()));
  const Selected font(buffer.Dc(), link.underlined);
  const bool isEnabled = IsWindowEnabled(link.window) != FALSE;
  SetTextColor(buffer.Dc(), isEnabled ? RGB(0, 0, 255) : GetSysColor(COLOR_GRAYTEXT));
  SetBkMode(buffer.Dc(), TRANSPARENT);
  constexpr UINT kFormat = DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX;
  RECT place = buffer.Client();
  InflateRect(&place, -2, 0);  // for the frame of the focus
  DrawTextA(buffer.Dc(), text.data(), -1, &place, kFormat);
  if (GetFocus() != link.window) return;
  RECT written = place;
  DrawTextA(buffer.Dc(), text.data(), -1, &written, kFormat | DT_CALCRECT);
  RECT frame = {0, 0, written.right + 2, buffer.Client().bottom};
  SetTextColor(buffer.Dc(), GetSysColor(COLOR_BTNTEXT));
  DrawFocusRect(buffer.Dc(), &frame);
}

void Follow(const LinkRecord& link) {
  PostMessageA(GetParent(link.window), WM_COMMAND, static_cast<WPARAM>(link.id), 0);
}

LRESULT HandleLink(LinkRecord& link, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SETFONT:
      TakeFont(link, reinterpret_cast<HFONT>(wParam));
      InvalidateRect(link.window, nullptr, TRUE);
      return 0;
    case WM_GETFONT:
      return reinterpret_cast<LRESULT>(link.font);
    case WM_SETTEXT:
    case WM_ENABLE:
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      InvalidateRect(link.window, nullptr, TRUE);
      break;
    case WM_GETDLGCODE:
      // Enter would go to the dialog's button.
      return wParam == VK_RETURN ? DLGC_WANTALLKEYS : 0;
    case WM_KEYDOWN:
      if (wParam == VK_RETURN || wParam == VK_SPACE) return Follow(link), 0;
      break;
    case WM_SETCURSOR:
      SetCursor(SharedControls().hand);
      return TRUE;
    case WM_LBUTTONDOWN:
      SetFocus(link.window);
      SetCapture(link.window);
      link.isPressed = true;
      return 0;
    case WM_LBUTTONUP: {
      const bool isClick = link.isPressed && HoldsPointer(link.window, lParam);
      ReleaseCapture();
      if (isClick) Follow(link);
      return 0;
    }
    case WM_CAPTURECHANGED:
      link.isPressed = false;
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
      Paint(link);
      return 0;
    default:
      break;
  }
  return DefWindowProcA(link.window, message, wParam, lParam);
}

}  // namespace

LinkRecord::~LinkRecord() {
  if (underlined != nullptr) DeleteObject(underlined);
}

LRESULT CALLBACK LinkProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return ControlProc<LinkRecord, HandleLink>(window, message, wParam, lParam);
}

}  // namespace tarnwick
