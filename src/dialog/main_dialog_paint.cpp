// What the main dialog paints itself: the header's tile and the strips round the pane.
#include <algorithm>

#include "controls/back_buffer.h"
#include "controls/control_shared.h"
#include "dialog/dialog_commands.h"
#include "dialog/main_dialog.h"
#include "dialog/models/new_layer_options.h"
#include "resources/art_ids.h"

namespace tarnwick {
namespace {

constexpr int kTileLeft = 453;
constexpr int kTileWidth = 4;
constexpr int kHeaderHeight = 71;
constexpr COLORREF kSeparatorColor = 0x7F7F7F;

void PaintTiles(HDC dc, HBITMAP tile, int width) {
  for (int x = 0; x < width; x += kTileWidth) {
    DrawBitmap(dc, tile, kTileLeft + x, 0, std::min(kTileWidth, width - x), kHeaderHeight, 0, 0);
  }
}

}  // namespace

void MainDialog::Paint() {
  PAINTSTRUCT paint{};
  const HDC dc = BeginPaint(window_, &paint);
  if (dc == nullptr) return;
  PaintTiles(dc, bitmaps_.Load(instance_, TARNWICK_ART_BAND_TILE), layout_.headerTileWidth);
  strips_.Paint(dc, frame_.previewLeft, layout_.upperStripTop, layout_.lowerStripTop);
  EndPaint(window_, &paint);
}

// All but what paints over the whole of its place, so that it does not flicker.
INT_PTR MainDialog::Erase(HDC dc) {
  const int saved = SaveDC(dc);
  const auto leaveOut = [&](const tarnwick::Place& place) {
    ExcludeClipRect(dc, place.x, place.y, place.x + place.width, place.y + place.height);
  };
  leaveOut(layout_.pane);
  leaveOut(layout_.tabs);
  if (bitmaps_.Load(instance_, TARNWICK_ART_BAND_TILE) != nullptr) {
    leaveOut({0, 0, frame_.width, kHeaderHeight});
  }
  leaveOut({frame_.previewLeft, layout_.upperStripTop, layout_.pane.width, kStripRows});
  leaveOut({frame_.previewLeft, layout_.lowerStripTop, layout_.pane.width, kStripRows});
  RECT client{};
  GetClientRect(window_, &client);
  FillRect(dc, &client, SharedControls().faceBrush);
  RestoreDC(dc, saved);
  SetWindowLongPtrA(window_, DWLP_MSGRESULT, TRUE);
  return TRUE;
}

INT_PTR MainDialog::ColorStatic(HDC dc, HWND control) const {
  const int id = GetDlgCtrlID(control);
  const bool isSeparator =
      std::find(kStripSeparators.begin(), kStripSeparators.end(), id) != kStripSeparators.end();
  const bool isBox = std::any_of(kNewLayerOptions.begin(), kNewLayerOptions.end(),
                                 [id](const NewLayerOption& option) { return option.boxId == id; });
  if (!isSeparator && !isBox) return FALSE;
  if (isSeparator) {
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, kSeparatorColor);
  }
  return reinterpret_cast<INT_PTR>(GetStockObject(NULL_BRUSH));
}

// The picture that the pane holds, from the last render.
void MainDialog::ShowPaneImage() {
  if (pane_ == nullptr || !preview_) return;
  SetPaneImage(*pane_, preview_->BuildPaneImage(PaneNow()));
}

void MainDialog::RefreshPreview() {
  if (!preview_) return;
  preview_->Render(views_.Current());
  ShowPaneImage();
  RedrawWindow(Item(kPane), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

}  // namespace tarnwick
