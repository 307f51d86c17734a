#include "dialog/preview_pane.h"

#include <algorithm>

#include "controls/back_buffer.h"
#include "controls/control_shared.h"
#include "controls/control_window.h"
#include "dialog/dialog_commands.h"
#include "dialog/models/pane_overlay.h"

namespace tarnwick {
namespace {

void PaintCross(HDC dc, const RECT& client) {
  const Selected pen(dc, GetStockObject(BLACK_PEN));
  MoveToEx(dc, 0, 0, nullptr);
  LineTo(dc, client.right, client.bottom);
  MoveToEx(dc, client.right, 0, nullptr);
  LineTo(dc, 0, client.bottom);
}

void Paint(const TPreviewContaner& pane) {
  const BackBuffer buffer(pane.window);
  if (buffer.Dc() == nullptr) return;
  const bool isPanning = pane.dragShiftX != 0 || pane.dragShiftY != 0;
  FillRect(
      buffer.Dc(), &buffer.Client(),
      isPanning ? SharedControls().faceBrush : static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
  if (pane.bitmap == nullptr) {
    PaintCross(buffer.Dc(), buffer.Client());
    return;
  }
  DrawBitmap(buffer.Dc(), pane.bitmap, pane.imageX + pane.dragShiftX, pane.imageY + pane.dragShiftY,
             pane.imageWidth, pane.imageHeight, 0, 0);
}

// Without the hand the pointer stays as it is; a null one would hide it.
bool SetHand(HCURSOR hand) {
  if (hand == nullptr) return false;
  SetCursor(hand);
  return true;
}

void BeginDrag(TPreviewContaner& pane, WPARAM keys, PointerPlace at) {
  pane.ctrlDrag = (keys & MK_CONTROL) != 0 ? 1 : 0;
  pane.isDragging = true;
  pane.dragLastX = pane.dragCurrentX = at.x;
  pane.dragLastY = pane.dragCurrentY = at.y;
  pane.dragShiftX = pane.dragShiftY = 0;
  SetCapture(pane.window);
  if (pane.ctrlDrag == 0) SetHand(pane.closedHand);
}

void Drag(TPreviewContaner& pane, PointerPlace at) {
  pane.dragCurrentX = at.x;
  pane.dragCurrentY = at.y;
  const int dx = pane.dragCurrentX - pane.dragLastX;
  const int dy = pane.dragCurrentY - pane.dragLastY;
  if (dx == 0 && dy == 0) return;
  pane.dragLastX = at.x;
  pane.dragLastY = at.y;
  if (pane.ctrlDrag != 0) {
    if (pane.moveOffset) pane.moveOffset(-dx, -dy);
    return;
  }
  pane.dragShiftX += dx;
  pane.dragShiftY += dy;
  RedrawControl(pane.window);
}

void EndDrag(TPreviewContaner& pane) {
  if (!pane.isDragging) return;
  pane.isDragging = false;
  ReleaseCapture();
  if (pane.ctrlDrag != 0) return;
  pane.panX -= pane.dragShiftX;
  pane.panY -= pane.dragShiftY;
  pane.dragShiftX = pane.dragShiftY = 0;
  SetHand(pane.openHand);
  SendMessageA(GetParent(pane.window), WM_COMMAND, MAKEWPARAM(pane.id, kPanEnded), 0);
}

// What else takes the mouse away has not let the button go: the picture goes back.
void LoseDrag(TPreviewContaner& pane) {
  if (!pane.isDragging) return;
  pane.isDragging = false;
  pane.dragShiftX = pane.dragShiftY = 0;
  RedrawControl(pane.window);
}

void PressRight(TPreviewContaner& pane) {
  if (pane.mode != kFullPreview || pane.imageWidth < 1 || pane.imageHeight < 1) return;
  SendMessageA(GetParent(pane.window), WM_COMMAND, kSettingsChanged, pane.id);
  SetCapture(pane.window);
}

bool ShowHand(const TPreviewContaner& pane) {
  if (GetKeyState(VK_CONTROL) < 0) return false;
  return SetHand(pane.isDragging ? pane.closedHand : pane.openHand);
}

LRESULT HandlePane(TPreviewContaner& pane, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CREATE:
    case WM_SIZE:
      pane.paneWidth = pane.width;
      pane.paneHeight = pane.height;
      return 0;
    case WM_SETCURSOR:
      if (ShowHand(pane)) return TRUE;
      break;
    case WM_LBUTTONDOWN:
      BeginDrag(pane, wParam, PointerOf(lParam));
      return 0;
    case WM_MOUSEMOVE:
      if (pane.isDragging) Drag(pane, PointerOf(lParam));
      return 0;
    case WM_LBUTTONUP:
      EndDrag(pane);
      return 0;
    case WM_CAPTURECHANGED:
      LoseDrag(pane);
      return 0;
    case WM_RBUTTONDOWN:
      PressRight(pane);
      return 0;
    case WM_RBUTTONUP:
      if (!pane.isDragging) ReleaseCapture();
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
      Paint(pane);
      return 0;
    default:
      break;
  }
  return DefWindowProcA(pane.window, message, wParam, lParam);
}

}  // namespace

TPreviewContaner::~TPreviewContaner() {
  if (bitmap != nullptr) DeleteObject(bitmap);
}

LRESULT CALLBACK PreviewPaneProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return ControlProc<TPreviewContaner, HandlePane>(window, message, wParam, lParam);
}

void SetPaneImage(TPreviewContaner& pane, const PanePicture& picture) {
  if (pane.bitmap != nullptr) DeleteObject(pane.bitmap);
  pane.bitmap = nullptr;
  pane.imageX = picture.imageX;
  pane.imageY = picture.imageY;
  pane.imageWidth = picture.imageWidth;
  pane.imageHeight = picture.imageHeight;
  if (picture.bitmap.empty()) return;
  BITMAPINFO info{};
  info.bmiHeader = {
      sizeof info.bmiHeader, picture.imageWidth, picture.imageHeight, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
  void* pixels = nullptr;
  pane.bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
  if (pane.bitmap == nullptr) return;
  auto* const bytes = static_cast<std::uint8_t*>(pixels);
  std::copy(picture.bitmap.begin(), picture.bitmap.end(), bytes);
  MarkPixels(bytes, picture.imageWidth, picture.imageHeight, pane.overlay);
}

}  // namespace tarnwick
