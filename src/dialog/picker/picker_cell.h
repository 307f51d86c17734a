#pragma once
#include <functional>
#include <optional>
#include <string>

#include "controls/control_button.h"
#include "controls/object_controls.h"
#include "dialog/models/picker_grid.h"
#include "dialog/thumbnail_bitmap.h"

namespace tarnwick {

// What a cell tells its picker, with the place of its texture in the filtered list.
struct PickerCellHooks {
  std::function<void(int place)> select;
  std::function<void(int place)> showDetail;
};

// One cell of the full-size picker: a thumbnail with its name, a button that chooses it
// and one that shows more of it. A press on the cell itself does nothing.
class TPickerThump : public TPickerControl {
 public:
  // `hooks` outlives it, and throws nothing.
  explicit TPickerThump(const PickerCellHooks& hooks) : hooks_(hooks) {}

  // In the grid's window, with its buttons. `scale`: by how much fonts have grown.
  bool Make(HWND grid, const PickerGrid& metrics, int cell, int cellId, float scale);
  LRESULT WindowProc(HWND target, UINT message, WPARAM wParam, LPARAM lParam) override;

  // A place in the list; without a bitmap the ground is all there is.
  void Put(int place, std::string caption, std::optional<ThumbnailBitmap> picture, float scale);
  // The one that OK would take has a frame.
  void MarkCurrent(bool isCurrent);

  bool pointerInside = false;
  int textureIndex = -1;
  float previewScale = 1;
  std::optional<ThumbnailBitmap> bitmap;
  HWND detailButton = nullptr;
  ControlButton* selectButton = nullptr;  // its window's

 private:
  void Paint();
  void Track(LPARAM lParam);
  [[nodiscard]] bool IsOnButton(LPARAM lParam) const;

  const PickerCellHooks& hooks_;
  PickerGrid metrics_;
  float scale_ = 1;
  std::string caption_;
  bool isCurrent_ = false;
};

}  // namespace tarnwick
