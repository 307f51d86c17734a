#pragma once
#include <windows.h>

namespace tarnwick::testui {

// Puts every live control on the page, each with all that it can show, at the size
// that templates have on a screen of `dpi`.
void FillPage(HWND page, int dpi);

// Disables all of them but the switch that does it, or enables them again.
void EnablePage(HWND page, bool isOn);

}  // namespace tarnwick::testui
