#include "dialog/thumbnail_cell.h"

#include "controls/back_buffer.h"
#include "controls/control_shared.h"

namespace tarnwick {
namespace {

constexpr int kCellRim = 2;

}  // namespace

void PaintThumbnailCell(HWND cell, const ThumbnailCellLook& look, const std::string& caption) {
  const BackBuffer buffer(cell);
  const HDC dc = buffer.Dc();
  if (dc == nullptr) return;
  const RECT& client = buffer.Client();
  FillRect(dc, &client, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
  const RECT inner = {kCellRim, kCellRim, client.right - kCellRim, client.bottom - kCellRim};
  FillRect(dc, &inner, look.ground);
  if (look.picture != nullptr) look.picture->Draw(dc, look.inset, look.inset);
  if (look.frame) {
    const RECT frame = {look.inset - 1, look.inset - 1, look.inset + look.size.width + 1,
                        look.inset + look.size.height + 1};
    const HBRUSH brush = CreateSolidBrush(*look.frame);
    FrameRect(dc, &frame, brush);
    DeleteObject(brush);
  }
  const Selected font(dc, SharedControls().fonts.FontThumbCaption);
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, look.captionColor);
  RECT place = look.captionPlace;
  DrawTextA(dc, caption.c_str(), -1, &place, DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

}  // namespace tarnwick
