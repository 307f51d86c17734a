// What the filmstrip looks like.
#include "controls/back_buffer.h"
#include "controls/control_shared.h"
#include "dialog/filmstrip/filmstrip_control.h"

namespace tarnwick {
namespace {

constexpr int kThumbnail = kFilmCellWidth - 2;

// Where there is no picture.
void PaintCross(HDC dc, int x) {
  const Selected pen(dc, GetStockObject(BLACK_PEN));
  MoveToEx(dc, x + 1, 1, nullptr);
  LineTo(dc, x + 1 + kThumbnail, 1 + kThumbnail);
  MoveToEx(dc, x + 1, kThumbnail, nullptr);
  LineTo(dc, x + 1 + kThumbnail, 0);
}

}  // namespace

void TFilmstripControl::Paint() const {
  const BackBuffer buffer(window);
  const HDC dc = buffer.Dc();
  if (dc == nullptr) return;
  const RECT& client = buffer.Client();
  FillRect(dc, &client, SharedControls().faceBrush);
  // A cell that slides in or out ends at the arrows.
  const int left = film_.ArrowWidth();
  IntersectClipRect(dc, left, 0, client.right - left, client.bottom);
  for (const FilmCell& cell : film_.Cells()) {
    const int x = left + cell.x;
    const RECT frame = {x, 0, x + kFilmCellWidth, client.bottom};
    FillRect(dc, &frame,
             static_cast<HBRUSH>(GetStockObject(cell.isHot ? BLACK_BRUSH : WHITE_BRUSH)));
    const auto index = static_cast<std::size_t>(cell.index);
    if (index < cells_.size() && !cells_[index].IsEmpty()) {
      cells_[index].Draw(dc, x + 1, 1);
    } else {
      PaintCross(dc, x);
    }
  }
}

}  // namespace tarnwick
