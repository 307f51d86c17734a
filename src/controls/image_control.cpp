#include "controls/image_control.h"

#include "controls/back_buffer.h"
#include "controls/control_classes.h"
#include "controls/control_shared.h"
#include "controls/control_window.h"

namespace tarnwick {
namespace {

LRESULT HandleImage(ImageControl& record, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_LBUTTONDOWN:
      SetFocus(record.window);
      break;
    case WM_COMMAND:
      return SendMessageA(GetParent(record.window), message, wParam, lParam);
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT: {
      const BackBuffer buffer(record.window);
      if (buffer.Dc() == nullptr) return 0;
      FillRect(buffer.Dc(), &buffer.Client(), SharedControls().faceBrush);
      DrawBitmap(buffer.Dc(), record.image, 0, 0, record.width, record.height, 0, 0);
      return 0;
    }
    default:
      break;
  }
  return DefWindowProcA(record.window, message, wParam, lParam);
}

}  // namespace

ImageControl::~ImageControl() {
  if (image != nullptr) DeleteObject(image);
}

LRESULT CALLBACK ImageControlProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return ControlProc<ImageControl, HandleImage>(window, message, wParam, lParam);
}

ImageControl* CreateImageControl(HWND parent, HINSTANCE instance, int x, int y, int width,
                                 int height, int id, HBITMAP bitmap, const char* caption) {
  const HWND window = CreateWindowExA(
      0, kImageClass, "", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, x, y, width,
      height, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), instance, nullptr);
  auto* const record = GetControlRecord<ImageControl>(window, kImageClass);
  if (record == nullptr) return nullptr;
  record->x = x;
  record->y = y;
  record->image = bitmap;
  if (caption != nullptr) record->text = caption;
  RedrawControl(window);
  return record;
}

}  // namespace tarnwick
