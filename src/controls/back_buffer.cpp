#include "controls/back_buffer.h"

namespace tarnwick {

BackBuffer::BackBuffer(HWND window) : window_(window) {
  BeginPaint(window_, &paint_);
  GetClientRect(window_, &client_);
  buffer_ = CreateCompatibleDC(paint_.hdc);
  bitmap_ = CreateCompatibleBitmap(paint_.hdc, client_.right, client_.bottom);
  if (buffer_ == nullptr || bitmap_ == nullptr) {
    if (buffer_ != nullptr) DeleteDC(buffer_);
    buffer_ = nullptr;
    return;
  }
  previous_ = SelectObject(buffer_, bitmap_);
}

BackBuffer::~BackBuffer() {
  if (buffer_ != nullptr) {
    BitBlt(paint_.hdc, 0, 0, client_.right, client_.bottom, buffer_, 0, 0, SRCCOPY);
    SelectObject(buffer_, previous_);
    DeleteDC(buffer_);
  }
  if (bitmap_ != nullptr) DeleteObject(bitmap_);
  EndPaint(window_, &paint_);
}

void DrawBitmap(HDC to, HBITMAP bitmap, int x, int y, int width, int height, int sourceX,
                int sourceY) {
  if (bitmap == nullptr) return;
  const HDC from = CreateCompatibleDC(to);
  if (from == nullptr) return;
  {
    const Selected selected(from, bitmap);
    BitBlt(to, x, y, width, height, from, sourceX, sourceY, SRCCOPY);
  }
  DeleteDC(from);
}

}  // namespace tarnwick
