#pragma once
#include "controls/control_record.h"

namespace tarnwick {

// "Control Button CPP": a push button or a toggle that shows one bitmap a state.
// Posts WM_COMMAND to its parent when it is released after a press, wherever the
// pointer is then. A window smaller than its bitmap shows the bitmap's top left.
struct ControlButton : TContaner {
  std::uint8_t toggle = 0;
  std::uint8_t hoverAlternate = 0;
  // Owned, as the other three are, but for shared ones.
  HBITMAP normalBitmap = nullptr;
  HBITMAP hoverBitmap = nullptr;
  HBITMAP pressedBitmap = nullptr;
  HBITMAP disabledBitmap = nullptr;

  ~ControlButton();
};

LRESULT CALLBACK ControlButtonProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Null when it cannot be made.
[[nodiscard]] ControlButton* CreateButtonControl(HWND parent, HINSTANCE instance, int x, int y,
                                                 int width, int height, int id);

// Bitmaps of the window's instance; 0 leaves a slot as it is, -1 to -3 take a bitmap
// that buttons share (SharedControls().buttonBitmaps).
void SetButtonBitmaps(ControlButton& record, int normalId, int hoverId, int pressedId,
                      int disabledId);

// The one that its present state shows.
[[nodiscard]] HBITMAP ShownBitmap(const ControlButton& record);

}  // namespace tarnwick
