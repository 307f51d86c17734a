#include "controls/color_swatch.h"

#include "controls/back_buffer.h"
#include "controls/control_shared.h"
#include "controls/control_window.h"
#include "controls/models/swatch_outline.h"

namespace tarnwick {
namespace {

COLORREF OutlineOf(COLORREF color, bool isHot) {
  return RGB(OutlineChannel(GetRValue(color), isHot), OutlineChannel(GetGValue(color), isHot),
             OutlineChannel(GetBValue(color), isHot));
}

void Paint(const ColorSwatch& swatch) {
  const BackBuffer buffer(swatch.window);
  if (buffer.Dc() == nullptr) return;
  const RECT& client = buffer.Client();
  const HBRUSH fill = CreateSolidBrush(swatch.color);
  if (swatch.enabled == 0) {
    FillRect(buffer.Dc(), &client, SharedControls().faceBrush);
    const RECT inner = {client.left + 4, client.top + 3, client.right - 4, client.bottom - 3};
    FillRect(buffer.Dc(), &inner, fill);
  } else {
    const HPEN pen = CreatePen(PS_SOLID, 1, OutlineOf(swatch.color, swatch.hot != 0));
    {
      const Selected brush(buffer.Dc(), fill);
      const Selected outline(buffer.Dc(), pen);
      Rectangle(buffer.Dc(), client.left, client.top, client.right, client.bottom);
    }
    DeleteObject(pen);
  }
  DeleteObject(fill);
}

void OnMove(ColorSwatch& swatch, LPARAM lParam) {
  const bool isInside = HoldsPointer(swatch.window, lParam);
  // Hot without the capture, another window took it meanwhile: the pointer comes anew.
  const bool isHeld = swatch.hot != 0 && GetCapture() == swatch.window;
  if (isInside ? isHeld : swatch.hot == 0) return;
  swatch.hot = isInside ? 1 : 0;
  if (isInside) {
    SetCapture(swatch.window);
  } else {
    ReleaseCapture();
  }
  RedrawControl(swatch.window);
}

void Choose(ColorSwatch& swatch) {
  ReleaseCapture();
  COLORREF color = swatch.color;
  const HWND window = swatch.window;
  const bool isChosen = PickColor(swatch, color);
  // The picker has run messages; the swatch may have gone with one of them.
  if (IsWindow(window) == FALSE) return;
  swatch.hot = 0;
  if (!isChosen) return RedrawControl(swatch.window);
  swatch.color = color;
  RedrawControl(swatch.window);
  SendControlCommand(swatch, 0);
}

LRESULT HandleSwatch(ColorSwatch& swatch, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_MOUSEMOVE:
      if (IgnoresPointer(swatch)) break;
      OnMove(swatch, lParam);
      return 0;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
      if (IgnoresPointer(swatch)) break;
      Choose(swatch);
      return 0;
    case WM_ENABLE:
      swatch.enabled = wParam != 0 ? 1 : 0;
      swatch.hot = 0;
      RedrawControl(swatch.window);
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
      Paint(swatch);
      return 0;
    default:
      break;
  }
  return DefWindowProcA(swatch.window, message, wParam, lParam);
}

}  // namespace

LRESULT CALLBACK ColorSwatchProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return ControlProc<ColorSwatch, HandleSwatch>(window, message, wParam, lParam);
}

}  // namespace tarnwick
