#pragma once
#include <optional>
#include <string>

#include "controls/object_controls.h"
#include "dialog/thumbnail_bitmap.h"

namespace tarnwick {

class TDrawerPicker;

// One cell of a drawer: a thumbnail with its name. Its picker owns it and hears of
// presses and double clicks.
class TPickerThump2 : public TDrawerWindow {
 public:
  explicit TPickerThump2(TDrawerPicker& picker) : picker_(picker) {}

  LRESULT WindowProc(HWND target, UINT message, WPARAM wParam, LPARAM lParam) override;

  // A place in the list; without a bitmap a crossed box is drawn.
  void Put(int place, std::string caption, std::optional<ThumbnailBitmap> bitmap, float scale = 1);
  void MarkSelected(bool isSelected);

  int textureIndex = -1;   // place in the list
  float previewScale = 1;  // of the live picture; see CellPreview
  bool pointerInside = false;

 private:
  void Paint();
  void Track(LPARAM lParam);

  TDrawerPicker& picker_;
  std::string caption_;
  std::optional<ThumbnailBitmap> bitmap_;
  bool isSelected_ = false;
};

}  // namespace tarnwick
