#pragma once
#include <windows.h>

#include <optional>
#include <string>

#include "dialog/thumbnail_bitmap.h"
#include "textures/thumbnail_picture.h"

namespace tarnwick {

// How a cell with a texture's picture looks, in a drawer as in the full-size picker.
// Pixels of the cell.
struct ThumbnailCellLook {
  HBRUSH ground = nullptr;  // but for a rim, in which what is behind the cells shows
  const ThumbnailBitmap* picture = nullptr;  // none: the ground
  int inset = 0;                             // of the picture, from the left and the top
  ThumbnailSize size;                        // that the frame lies round
  std::optional<COLORREF> frame;
  RECT captionPlace{};
  COLORREF captionColor = 0;
};

// Answers WM_PAINT of `cell`.
void PaintThumbnailCell(HWND cell, const ThumbnailCellLook& look, const std::string& caption);

}  // namespace tarnwick
