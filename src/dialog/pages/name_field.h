#pragma once
#include <windows.h>

namespace tarnwick {

// Notification of a field that shows a name: it has been double clicked, and the button
// is up again.
inline constexpr WORD kNameDoubleClicked = 0x0601;

// Once. From then on the field tells its parent so, by a posted WM_COMMAND, instead of selecting
// a word.
void TellDoubleClicks(HWND field);

}  // namespace tarnwick
