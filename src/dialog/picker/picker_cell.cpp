#include "dialog/picker/picker_cell.h"

#include <utility>

#include "controls/control_shared.h"
#include "controls/control_window.h"
#include "controls/tool_tip.h"
#include "dialog/thumbnail_cell.h"
#include "resources/art_ids.h"

namespace tarnwick {
namespace {

constexpr std::uint8_t kCellKind = 2;
constexpr int kSelect = 998;
constexpr int kDetail = 1000;
constexpr COLORREF kCurrentFrame = RGB(255, 0, 0);
constexpr COLORREF kCaptionColor = RGB(200, 200, 200);

bool Holds(const Place& place, PointerPlace p) {
  return p.x >= place.x && p.x < place.x + place.width && p.y >= place.y &&
         p.y < place.y + place.height;
}

}  // namespace

bool TPickerThump::Make(HWND grid, const PickerGrid& metrics, int cell, int cellId, float scale) {
  metrics_ = metrics;
  scale_ = scale;
  const Place at = PickerCellPlace(metrics, cell);
  if (!Create(grid, cellId, kCellKind, at.x, at.y, at.width, at.height, 0)) return false;
  const HINSTANCE instance = SharedControls().instance;
  const Place detail = DetailButtonPlace(metrics, scale);
  detailButton =
      CreateWindowExA(0, "BUTTON", "+", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, detail.x, detail.y,
                      detail.width, detail.height, window,
                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(kDetail)), instance, nullptr);
  SendMessageA(detailButton, WM_SETFONT,
               reinterpret_cast<WPARAM>(SharedControls().fonts.FontSmallBold), FALSE);
  AddToolTip(detailButton, "View detailed preview of this texture effect applied", nullptr);
  const Place select = SelectButtonPlace(metrics);
  selectButton = CreateButtonControl(window, instance, select.x, select.y, select.width,
                                     select.height, kSelect);
  if (selectButton != nullptr) {
    SetButtonBitmaps(*selectButton, TARNWICK_ART_PICKER_SELECT, TARNWICK_ART_PICKER_SELECT_HOVER,
                     TARNWICK_ART_PICKER_SELECT, 0);
    AddToolTip(selectButton->window, "Select and apply this texture", nullptr);
  }
  return true;
}

void TPickerThump::Put(int place, std::string caption, std::optional<ThumbnailBitmap> picture,
                       float scale) {
  textureIndex = place;
  caption_ = std::move(caption);
  bitmap = std::move(picture);
  previewScale = scale;
}

void TPickerThump::MarkCurrent(bool isCurrent) {
  if (std::exchange(isCurrent_, isCurrent) != isCurrent) InvalidateRect(window, nullptr, FALSE);
}

LRESULT TPickerThump::WindowProc(HWND target, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_ERASEBKGND:
      return TRUE;
    case WM_PAINT:
      Paint();
      return 0;
    case WM_MOUSEMOVE:
      Track(lParam);
      return 0;
    case WM_CAPTURECHANGED:
      if (std::exchange(pointerInside, false)) InvalidateRect(target, nullptr, FALSE);
      return 0;
    case WM_COMMAND:
      if (LOWORD(wParam) == kSelect) hooks_.select(textureIndex);
      if (LOWORD(wParam) == kDetail && HIWORD(wParam) == BN_CLICKED) {
        hooks_.showDetail(textureIndex);
      }
      return 0;
    default:
      return TPickerControl::WindowProc(target, message, wParam, lParam);
  }
}

bool TPickerThump::IsOnButton(LPARAM lParam) const {
  const PointerPlace p = PointerOf(lParam);
  return Holds(DetailButtonPlace(metrics_, scale_), p) || Holds(SelectButtonPlace(metrics_), p);
}

void TPickerThump::Track(LPARAM lParam) {
  const bool isInside = HoldsPointer(window, lParam);
  if (isInside && !IsOnButton(lParam)) {
    if (pointerInside) return;
    // Taken before it is noted: what held it until now is told first.
    SetCapture(window);
    pointerInside = true;
  } else {
    // First, lest the release asks for a redraw.
    pointerInside = false;
    if (GetCapture() == window) ReleaseCapture();
    // The button shows what is under the pointer there.
    if (isInside) return;
  }
  InvalidateRect(window, nullptr, FALSE);
  UpdateWindow(window);
}

void TPickerThump::Paint() {
  const Place caption = CellCaptionPlace(metrics_);
  ThumbnailCellLook look;
  look.ground = static_cast<HBRUSH>(GetStockObject(pointerInside ? GRAY_BRUSH : DKGRAY_BRUSH));
  look.picture = bitmap ? &*bitmap : nullptr;
  look.inset = kPickerThumbnailInset;
  look.size = metrics_.thumbnail;
  if (isCurrent_) look.frame = kCurrentFrame;
  look.captionPlace = {caption.x, caption.y, caption.x + caption.width, caption.y + caption.height};
  look.captionColor = kCaptionColor;
  PaintThumbnailCell(window, look, caption_);
}

}  // namespace tarnwick
