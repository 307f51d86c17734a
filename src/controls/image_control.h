#pragma once
#include "controls/control_record.h"

namespace tarnwick {

// "Control CPP": shows a bitmap as it is, at its top left. Commands of controls in
// it go on to its parent.
struct ImageControl : TContaner {
  std::uint8_t imageMode = 1;  // 1: the plain bitmap
  HBITMAP image = nullptr;     // owned

  ~ImageControl();
};

LRESULT CALLBACK ImageControlProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Takes `bitmap` over. Null when it cannot be made; the bitmap is the caller's
// still then. `caption` may be null.
[[nodiscard]] ImageControl* CreateImageControl(HWND parent, HINSTANCE instance, int x, int y,
                                               int width, int height, int id, HBITMAP bitmap,
                                               const char* caption);

}  // namespace tarnwick
