#pragma once
#include <windows.h>

#include "controls/image_button.h"
#include "dialog/bitmap_set.h"

namespace tarnwick {

// The looks of the two zoom buttons, which are stock buttons. Has to live as long as
// they do.
class ZoomButtonSkins {
 public:
  void Skin(HWND zoomIn, HWND zoomOut, BitmapSet& bitmaps, HINSTANCE instance);

 private:
  ImageButtonState zoomIn_;
  ImageButtonState zoomOut_;
};

}  // namespace tarnwick
