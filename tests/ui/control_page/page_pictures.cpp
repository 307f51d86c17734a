#include "ui/control_page/page_pictures.h"

#include "controls/back_buffer.h"

namespace tarnwick::testui {

HBITMAP MakePicture(int width, int height, COLORREF color, const char* letter) {
  const HDC screen = GetDC(nullptr);
  const HDC dc = CreateCompatibleDC(screen);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
  ReleaseDC(nullptr, screen);
  const HBRUSH fill = CreateSolidBrush(color);
  {
    const Selected target(dc, bitmap);
    const Selected brush(dc, fill);
    Rectangle(dc, 0, 0, width, height);
    SetBkMode(dc, TRANSPARENT);
    RECT frame = {0, 0, width, height};
    DrawTextA(dc, letter, -1, &frame, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
  }
  DeleteObject(fill);
  DeleteDC(dc);
  return bitmap;
}

}  // namespace tarnwick::testui
