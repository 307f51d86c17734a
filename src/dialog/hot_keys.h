#pragma once
#include <windows.h>

namespace tarnwick {

// Keys that work wherever the focus is. Each posts a command to its dialog.
void RegisterHotKeys(HWND dialog);
void UnregisterHotKeys(HWND dialog);

// The command of the key that WM_HOTKEY names; 0 for none.
[[nodiscard]] int CommandOfHotKey(WPARAM key);

}  // namespace tarnwick
