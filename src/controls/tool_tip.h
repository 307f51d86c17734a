#pragma once
#include <windows.h>

namespace tarnwick {

// A tip of its own for one control, over its whole client area, at most 100 pixels
// wide; with a title it bears the information icon. Nothing without a window or a
// text. The tip goes with the top-level window around it; null where there is none.
HWND AddToolTip(HWND window, const char* text, const char* title);

// After `window` got another size: its tip covers all of it again.
void FitToolTip(HWND tip, HWND window);

}  // namespace tarnwick
