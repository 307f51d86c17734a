#pragma once
#include "dialog/models/dialog_layout.h"
#include "textures/thumbnail_picture.h"

namespace tarnwick {

// Where everything of the full-size picker lies, worked out of the frame that its
// template draws round the cells. Pixels; of the dialog's client area, or of a cell.

inline constexpr int kPickerColumns = 4;
inline constexpr int kPickerCells = 8;

// Of the thumbnail in its cell.
inline constexpr int kPickerThumbnailInset = 6;

struct PickerGrid {
  Place place;  // of all cells
  int cellWidth = 0, cellHeight = 0;
  ThumbnailSize thumbnail;  // at least 1 by 1
};
[[nodiscard]] PickerGrid GridIn(const Place& frame);

// In the grid.
[[nodiscard]] Place PickerCellPlace(const PickerGrid& grid, int cell);

// The buttons in a cell. `scale` is 1 or more: fonts grow by it, and what bears text.
[[nodiscard]] Place DetailButtonPlace(const PickerGrid& grid, float scale);
[[nodiscard]] Place SelectButtonPlace(const PickerGrid& grid);
// The texture's name: it ends before Select.
[[nodiscard]] Place CellCaptionPlace(const PickerGrid& grid);

// The large buttons that turn the page, beside the frame.
[[nodiscard]] Place PreviousPagePlace(const Place& frame);
[[nodiscard]] Place NextPagePlace(const Place& frame);

// What is painted behind: the band of the filters, that of the page strip, and the
// dialog's face above and below them. Bands are as high as controls of the screen are.
struct PickerBands {
  Place filters, pages, faceAbove, faceBelow;
};
[[nodiscard]] PickerBands BandsOf(const Place& frame, int clientWidth, int clientHeight, int dpi);

// The window of one texture: its picture, and the lines below it.
struct DetailPlaces {
  Place picture, close;
  int textLeft = 0, valueLeft = 0;  // of the lines
  int setTop = 0, nameTop = 0;
};
[[nodiscard]] DetailPlaces DetailPlacesIn(int clientWidth, int clientHeight, int dpi, float scale);

}  // namespace tarnwick
