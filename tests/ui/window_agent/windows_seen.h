#pragma once
#include <windows.h>

#include "ui/window_agent/json_line.h"

namespace tarnwick::testui {

// What can be seen of the windows of other programs.

// Visible windows of the screen, the topmost first; see TellWindow.
void TellTopWindows(JsonLine& answer);

// All windows inside a window, each before those inside it.
void TellChildren(HWND window, JsonLine& answer);

// {"window","process","id","class","text","visible","enabled","checked","frame":
// [left, top, right, bottom],"client":[...]}, in pixels of the screen.
void TellWindow(HWND window, JsonLine& answer);

// {"focus","capture","active"} of the thread that has the input.
void TellFocus(JsonLine& answer);

// The shape that the pointer has on the screen: a number that stands for it within
// the program below it, 0 for none.
[[nodiscard]] long long PointerShape();

// The texts of a window's tool tips, as a list.
void TellTips(HWND window, JsonLine& answer);

// The captions of a tab control, as a list.
void TellTabs(HWND tabs, JsonLine& answer);

// The texts of a list box's rows, as a list.
void TellRows(HWND list, JsonLine& answer);

// Waits for the window's answer for some seconds at most.
[[nodiscard]] bool Ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer);

}  // namespace tarnwick::testui
