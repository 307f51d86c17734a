#include "dialog/models/filmstrip.h"

#include <algorithm>
#include <cmath>

#include "base/truncate.h"

namespace tarnwick {
namespace {

constexpr int kCellsWidth = kFilmCells * kFilmCellWidth;
constexpr int kSlidingCells = kFilmCells + 1;
constexpr float kWholeSlide = 100.0F;
constexpr float kStep = 10.0F;

}  // namespace

FilmPlace PlaceFilmstrip(int room) {
  const int width = std::clamp(room, kCellsWidth, kFilmWidth);
  return {(room - width) / 2, width};
}

int AdoptedFilmWidth(int width) {
  return (width - 2 + 3) / 4 * 4 + 2;
}

void Filmstrip::Resize(int width, int height) {
  width_ = width;
  height_ = height;
}

int Filmstrip::ArrowWidth() const {
  return std::clamp((width_ - kCellsWidth) / 2, 0, kFilmArrow);
}

void Filmstrip::SetCount(int count) {
  count_ = std::max(count, 0);
  page_ = 0;
  hotCell_ = -1;
  pressLock_ = false;
  slide_ = FilmSlide::kStill;
}

bool Filmstrip::StartSlide(FilmSlide direction) {
  if (IsSliding()) return false;
  slide_ = direction;
  progress_ = 0;
  return true;
}

bool Filmstrip::Step() {
  if (!IsSliding()) return true;
  if (progress_ < kWholeSlide) {
    progress_ += kStep;
    return false;
  }
  const int next = page_ + (slide_ == FilmSlide::kForward ? 1 : -1);
  page_ = std::max(std::min(next, PageCount() - 1), 0);
  slide_ = FilmSlide::kStill;
  return true;
}

// The square root makes it start fast and ease out at the end.
std::vector<FilmCell> Filmstrip::Cells() const {
  int first = page_ * kFilmCells;
  int shift = 0;
  if (IsSliding()) {
    const float way = std::sqrt(progress_ / kWholeSlide) * static_cast<float>(kFilmCells);
    const int whole = TruncateToInt(way);
    const float part = (way - static_cast<float>(whole)) * static_cast<float>(kFilmCellWidth);
    if (slide_ == FilmSlide::kForward) {
      first += whole;
      shift = TruncateToInt(-part);
    } else {
      first -= whole + 1;
      shift = TruncateToInt(part - static_cast<float>(kFilmCellWidth));
    }
    if (first < 0) first = shift = 0;
  }
  std::vector<FilmCell> cells;
  for (int i = 0; i < (IsSliding() ? kSlidingCells : kFilmCells); ++i) {
    if (first + i >= count_) break;
    cells.push_back({first + i, shift + i * kFilmCellWidth, i == hotCell_});
  }
  return cells;
}

bool Filmstrip::IsInStrip(int x, int y) const {
  return x >= ArrowWidth() && x <= width_ - ArrowWidth() && y >= 0 && y <= height_;
}

// The area's last column, which it shares with the arrow, is still the last cell's.
int Filmstrip::CellAt(int x) const {
  return std::min((x - ArrowWidth()) / kFilmCellWidth, kFilmCells - 1);
}

FilmMove Filmstrip::Move(int x, int y, bool isPressed) {
  if (!isPressed) pressLock_ = false;
  if (pressLock_) return FilmMove::kNone;
  const bool isIn = IsInStrip(x, y);
  hotCell_ = isIn ? CellAt(x) : -1;
  return isIn ? FilmMove::kTakePointer : FilmMove::kReleasePointer;
}

std::optional<int> Filmstrip::PresetAt(int x, int y) const {
  if (IsSliding() || !IsInStrip(x, y)) return std::nullopt;
  const int index = page_ * kFilmCells + CellAt(x);
  return index < count_ ? std::optional(index) : std::nullopt;
}

bool Filmstrip::Press(int x, int y) {
  if (!IsInStrip(x, y)) return false;
  hotCell_ = -1;
  pressLock_ = true;
  return true;
}

bool Filmstrip::Release(int x, int y) {
  pressLock_ = false;
  if (!IsInStrip(x, y)) return false;
  hotCell_ = CellAt(x);
  return true;
}

bool Filmstrip::LosePointer() {
  const bool wasHot = hotCell_ >= 0;
  hotCell_ = -1;
  return wasHot;
}

}  // namespace tarnwick
