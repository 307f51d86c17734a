// Panels that slide over their owner.
#include "controls/back_buffer.h"
#include "controls/control_classes.h"
#include "controls/control_shared.h"
#include "controls/object_controls.h"

namespace tarnwick {
namespace {

constexpr UINT_PTR kSlideTimer = 1;
constexpr UINT kSlideMilliseconds = 10;

}  // namespace

TDrawerWindow::~TDrawerWindow() {
  const HWND own = window;
  AttachTo(nullptr);
  if (own != nullptr && IsWindow(own)) DestroyWindow(own);
}

bool TDrawerWindow::Create(HWND parent, int left, int top, int w, int h, int windowId) {
  owner = parent;
  x = left;
  y = top;
  width = w;
  height = h;
  id = windowId;
  const HWND made = CreateWindowExA(
      WS_EX_TOPMOST, kDrawerClass, "", WS_CHILD | WS_CLIPSIBLINGS, left, top, w, h, parent,
      reinterpret_cast<HMENU>(static_cast<INT_PTR>(windowId)), SharedControls().instance, nullptr);
  if (made == nullptr) return false;
  AttachTo(made);
  OnCreated();
  return true;
}

LRESULT TDrawerWindow::WindowProc(HWND target, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_ERASEBKGND:
      if (panelBitmap == nullptr) break;
      DrawBitmap(reinterpret_cast<HDC>(wParam), panelBitmap, 0, 0, width, height, 0, 0);
      return TRUE;
    case WM_TIMER:
      if (wParam == kSlideTimer) SlideOn();
      return 0;
    default:
      break;
  }
  return DefWindowProcA(target, message, wParam, lParam);
}

void TDrawerWindow::SlideIn() {
  if (window == nullptr || IsWindowVisible(window) != FALSE) return;
  slide_.StartIn();
  // Out of sight, above whatever lies at its place.
  SetWindowPos(window, HWND_TOP, -width, 0, width, height, SWP_NOREDRAW | SWP_NOACTIVATE);
  SetTimer(window, kSlideTimer, kSlideMilliseconds, nullptr);
  ShowWindow(window, SW_SHOWNA);
}

void TDrawerWindow::SlideOut() {
  if (window == nullptr) return;
  slide_.StartOut();
  SetTimer(window, kSlideTimer, kSlideMilliseconds, nullptr);
}

void TDrawerWindow::SlideOn() {
  const DrawerSlide::Step step = slide_.Tick(width);
  if (step.isMove) {
    SetWindowPos(window, nullptr, x + step.shift, y, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    if (step.isLast) {
      RedrawWindow(window, nullptr, nullptr,
                   RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
    return;
  }
  if (slide_.IsStill()) KillTimer(window, kSlideTimer);
  if (step.isIn) UpdateWindow(owner);
  if (step.isOut) {
    ShowWindow(window, SW_HIDE);
    if (closed) closed();
  }
}

void TDrawerWindow::MoveTo(int left, int top, int w, int h) {
  x = left;
  y = top;
  width = w;
  height = h;
  if (window == nullptr) return;
  // What lies below may have come up in being moved itself.
  SetWindowPos(window, HWND_TOP, left, top, w, h, SWP_NOACTIVATE);
}

}  // namespace tarnwick
