#include "dialog/models/picker_pages.h"

#include <algorithm>
#include <utility>

#include "dialog/models/picker_grid.h"

namespace tarnwick {

void PickerPages::Open(const char* selectedName) {
  catalogue_.ApplyFilters({}, sets_);
  if (selectedName != nullptr) catalogue_.FindByName(selectedName);
  savedIndex_ = catalogue_.currentIndex;
  page_ = 0;
  (void)TurnToCurrent();
}

int PickerPages::PageCount() const {
  return (Count() + kPickerCells - 1) / kPickerCells;
}

bool PickerPages::GoTo(int page) {
  if (page < 0 || page >= PageCount()) return false;
  return std::exchange(page_, page) != page;
}

int PickerPages::PlaceOfCell(int cell) const {
  const int place = page_ * kPickerCells + cell;
  return cell >= 0 && cell < kPickerCells && place < Count() ? place : -1;
}

void PickerPages::Filter(const TextureFilter& filter) {
  catalogue_.ApplyFilters(filter, sets_);
  page_ = 0;
  catalogue_.FindByName(std::string(catalogue_.selectedName));
}

bool PickerPages::TurnToCurrent() {
  const int current = catalogue_.currentIndex;
  return current >= 0 && current < Count() && GoTo(current / kPickerCells);
}

bool PickerPages::Move(int step) {
  const int current = catalogue_.currentIndex;
  const bool isMarked = current >= 0 && current < Count();
  const int place = isMarked ? current + step : PlaceOfCell(0);
  if (place < 0 || place >= Count()) return false;
  catalogue_.currentIndex = place;
  return TurnToCurrent();
}

void PickerPages::Accept() {
  const int current = catalogue_.currentIndex;
  if (current < 0 || current >= Count()) return;
  catalogue_.selectedName = catalogue_.filtered[static_cast<std::size_t>(current)].fileName;
}

}  // namespace tarnwick
