#include "dialog/drawers/drawer_cell.h"

#include <utility>

#include "controls/control_shared.h"
#include "controls/control_window.h"
#include "dialog/drawers/drawer_picker.h"
#include "dialog/models/crossed_box.h"
#include "dialog/thumbnail_cell.h"

namespace tarnwick {
namespace {

// Of the thumbnail in the cell.
constexpr int kOrigin = 5;
constexpr int kCaptionLeft = 5;
constexpr int kCaptionAboveBottom = 17;
constexpr int kCaptionGap = 3;  // on its right
constexpr COLORREF kSelectedFrame = RGB(255, 215, 108);
constexpr COLORREF kCaptionColor = RGB(200, 200, 200);
constexpr COLORREF kHoveredCaption = RGB(255, 255, 255);
// As the two brushes are.
constexpr std::uint8_t kHoveredGrey = 146;
constexpr std::uint8_t kIdleGrey = 84;

const ThumbnailBitmap& NoPicture(bool isHovered) {
  static const ThumbnailBitmap kBoxes[] = {
      ThumbnailBitmap(CrossedBox(kDrawerThumbnail, {kIdleGrey, kIdleGrey, kIdleGrey})),
      ThumbnailBitmap(CrossedBox(kDrawerThumbnail, {kHoveredGrey, kHoveredGrey, kHoveredGrey}))};
  return kBoxes[isHovered ? 1 : 0];
}

}  // namespace

void TPickerThump2::Put(int place, std::string caption, std::optional<ThumbnailBitmap> bitmap,
                        float scale) {
  textureIndex = place;
  caption_ = std::move(caption);
  bitmap_ = std::move(bitmap);
  previewScale = scale;
}

void TPickerThump2::MarkSelected(bool isSelected) {
  if (std::exchange(isSelected_, isSelected) != isSelected) {
    InvalidateRect(window, nullptr, FALSE);
  }
}

LRESULT TPickerThump2::WindowProc(HWND target, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_ERASEBKGND:
      return TRUE;
    case WM_PAINT:
      Paint();
      return 0;
    case WM_MOUSEMOVE:
      Track(lParam);
      return 0;
    case WM_LBUTTONDOWN:
      picker_.CellPressed(textureIndex);
      return 0;
    case WM_LBUTTONDBLCLK:
      picker_.CellDoubleClicked();
      return 0;
    case WM_CAPTURECHANGED:
      if (std::exchange(pointerInside, false)) InvalidateRect(target, nullptr, FALSE);
      return 0;
    default:
      return TDrawerWindow::WindowProc(target, message, wParam, lParam);
  }
}

void TPickerThump2::Track(LPARAM lParam) {
  if (HoldsPointer(window, lParam)) {
    if (pointerInside) return;
    SetCapture(window);
    pointerInside = true;
  } else {
    pointerInside = false;
    if (GetCapture() == window) ReleaseCapture();
  }
  InvalidateRect(window, nullptr, FALSE);
  UpdateWindow(window);
}

void TPickerThump2::Paint() {
  const ControlShared& shared = SharedControls();
  ThumbnailCellLook look;
  look.ground = pointerInside ? shared.hoveredCell : shared.idleCell;
  look.picture = bitmap_ ? &*bitmap_ : &NoPicture(pointerInside);
  look.inset = kOrigin;
  look.size = kDrawerThumbnail;
  if (isSelected_) look.frame = kSelectedFrame;
  look.captionPlace = {kCaptionLeft, height - kCaptionAboveBottom, width - kCaptionGap, height};
  look.captionColor = pointerInside ? kHoveredCaption : kCaptionColor;
  PaintThumbnailCell(window, look, caption_);
}

}  // namespace tarnwick
