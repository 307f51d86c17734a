#pragma once
#include <windows.h>

namespace tarnwick {

// A bitmap of a window's client area to paint into, which is put on the window in
// one go when the buffer goes. Made in answer to WM_PAINT.
class BackBuffer {
 public:
  explicit BackBuffer(HWND window);
  ~BackBuffer();
  BackBuffer(const BackBuffer&) = delete;
  BackBuffer& operator=(const BackBuffer&) = delete;

  // Null when there is no memory for it; nothing is painted then.
  [[nodiscard]] HDC Dc() const { return buffer_; }
  [[nodiscard]] const RECT& Client() const { return client_; }

 private:
  HWND window_;
  PAINTSTRUCT paint_{};
  RECT client_{};
  HDC buffer_ = nullptr;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ previous_ = nullptr;
};

// Puts an object into a device context and the earlier one back.
class Selected {
 public:
  Selected(HDC dc, HGDIOBJ object) : dc_(dc), previous_(SelectObject(dc, object)) {}
  ~Selected() { SelectObject(dc_, previous_); }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

 private:
  HDC dc_;
  HGDIOBJ previous_;
};

// The top left `width` by `height` of a bitmap, from (sourceX, sourceY) on.
void DrawBitmap(HDC to, HBITMAP bitmap, int x, int y, int width, int height, int sourceX,
                int sourceY);

}  // namespace tarnwick
