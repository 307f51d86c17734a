#pragma once
#include <windows.h>

namespace tarnwick::testui {

// A skin: a flat colour with a one-pixel frame and a letter.
[[nodiscard]] HBITMAP MakePicture(int width, int height, COLORREF color, const char* letter);

}  // namespace tarnwick::testui
