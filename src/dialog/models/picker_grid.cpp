#include "dialog/models/picker_grid.h"

#include <algorithm>

namespace tarnwick {
namespace {

constexpr int kBandHeight = 30;
constexpr int kBelowFrame = 10;
constexpr int kArrowWidth = 28;
constexpr int kArrowHeight = 125;
constexpr int kDesignDpi = 96;

int OnScreen(int length, int dpi) {
  return length * std::max(dpi, kDesignDpi) / kDesignDpi;
}

Place PlaceBetween(int left, int top, int right, int bottom) {
  return {left, top, std::max(right - left, 0), std::max(bottom - top, 0)};
}

int ArrowTop(const Place& frame) {
  return (2 * frame.y + frame.height - kArrowHeight) / 2;
}

}  // namespace

PickerGrid GridIn(const Place& frame) {
  const int width = std::max(frame.width / 4 * 4 - 14, 0);
  const int height = std::max(frame.height / 2 * 2 - 20, 0);
  PickerGrid grid;
  grid.place = {frame.x + (frame.width - width) / 2, frame.y + 14, width, height};
  grid.cellWidth = width / kPickerColumns;
  grid.cellHeight = height / (kPickerCells / kPickerColumns);
  const int thumbnail = std::max(grid.cellWidth - 2 * kPickerThumbnailInset, 1);
  grid.thumbnail = {thumbnail, std::max(thumbnail * 3 / 4, 1)};
  return grid;
}

Place PickerCellPlace(const PickerGrid& grid, int cell) {
  return {cell % kPickerColumns * grid.cellWidth, cell / kPickerColumns * grid.cellHeight,
          grid.cellWidth, grid.cellHeight};
}

Place DetailButtonPlace(const PickerGrid& grid, float scale) {
  const int side = ScaledLength(16, scale);
  return {grid.cellWidth - 9 - side, grid.cellHeight - 52, side, side};
}

Place SelectButtonPlace(const PickerGrid& grid) {
  return {grid.cellWidth - 50, grid.cellHeight - 27, 44, 19};
}

Place CellCaptionPlace(const PickerGrid& grid) {
  return {5, grid.cellHeight - 20, std::max(SelectButtonPlace(grid).x - 4 - 5, 0), 20};
}

Place PreviousPagePlace(const Place& frame) {
  return {frame.x - kArrowWidth, ArrowTop(frame), kArrowWidth, kArrowHeight};
}

Place NextPagePlace(const Place& frame) {
  return {frame.x + frame.width, ArrowTop(frame), kArrowWidth, kArrowHeight};
}

PickerBands BandsOf(const Place& frame, int clientWidth, int clientHeight, int dpi) {
  const int right = frame.x + frame.width;
  const int bottom = frame.y + frame.height;
  const int height = OnScreen(kBandHeight, dpi);
  const int upper = frame.y - height;
  const int lower = bottom + OnScreen(kBelowFrame, dpi);
  return {PlaceBetween(frame.x, upper, right, frame.y),
          PlaceBetween(frame.x, lower, right, lower + height),
          PlaceBetween(0, 0, clientWidth, upper),
          PlaceBetween(0, lower + height, clientWidth, clientHeight)};
}

DetailPlaces DetailPlacesIn(int clientWidth, int clientHeight, int dpi, float scale) {
  constexpr int kMargin = 20;
  DetailPlaces places;
  places.picture =
      PlaceBetween(kMargin, kMargin, clientWidth - kMargin, clientHeight - OnScreen(60, dpi));
  places.close = {clientWidth - 18, 4, 14, 14};
  const int below = kMargin + places.picture.height;
  places.textLeft = kMargin;
  places.valueLeft = kMargin + ScaledLength(65, scale);
  places.setTop = below + ScaledLength(5, scale);
  places.nameTop = below + ScaledLength(15, scale);
  return places;
}

}  // namespace tarnwick
