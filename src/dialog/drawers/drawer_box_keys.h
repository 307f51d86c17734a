#pragma once
#include <windows.h>

namespace tarnwick {

// Enter and Escape in a drop list whose list is closed go to its parent as key presses.
// The dialog would answer them by its own OK and Cancel, which are disabled while a
// drawer is open.
void PassKeysToParent(HWND box);

}  // namespace tarnwick
