#pragma once
#include <cstdint>
#include <optional>
#include <vector>

namespace tarnwick {

// The strip of looks without its window: which five cells are shown, how a page of them
// slides to the next, and what the pointer does.
//
// Places are pixels of the strip's window. An arrow stands at each end, as high as the
// window; the strip area between them holds five cells side by side, both of its ends
// included.

inline constexpr int kFilmCells = 5;
inline constexpr int kFilmCellWidth = 63;  // a thumbnail and a border of one pixel
inline constexpr int kFilmHeight = 63;
inline constexpr int kFilmArrow = 20;
inline constexpr int kFilmWidth = 71 * kFilmCells;

enum class FilmSlide : std::uint8_t { kStill = 0, kForward = 1, kBack = 255 };

// Milliseconds between the steps of a slide.
inline constexpr int kFilmStepMs = 30;

// What a move of the pointer asks of the window; both want a repaint too.
enum class FilmMove { kNone, kTakePointer, kReleasePointer };

// A cell in sight. `index` may be that of no name: then nothing is painted.
struct FilmCell {
  int index;
  int x;  // from the strip area's left
  bool isHot;
};

// As wide as it is told, but in room that is narrower no wider than that: the arrows
// give way, and no cell is cut, as long as the five have room at all.
struct FilmPlace {
  int x, width;
};
[[nodiscard]] FilmPlace PlaceFilmstrip(int room);
// The width a template's window is given as it is adopted: two more than a multiple of
// four, upwards.
[[nodiscard]] int AdoptedFilmWidth(int width);

class Filmstrip {
 public:
  // The arrows share what the cells leave.
  void Resize(int width, int height);
  [[nodiscard]] int ArrowWidth() const;

  // Other names: back to the first page, at rest, the pointer nowhere.
  void SetCount(int count);
  [[nodiscard]] int Count() const { return count_; }
  [[nodiscard]] int PageCount() const { return (count_ + kFilmCells - 1) / kFilmCells; }
  [[nodiscard]] int Page() const { return page_; }

  // False while one is under way: then nothing changes.
  bool StartSlide(FilmSlide direction);
  // A step of the slide; true with the last one, which changes the page.
  bool Step();
  [[nodiscard]] bool IsSliding() const { return slide_ != FilmSlide::kStill; }
  [[nodiscard]] bool CanGoBack() const { return page_ > 0; }
  [[nodiscard]] bool CanGoForward() const { return page_ < PageCount() - 1; }

  // In the order of painting; six while it slides.
  [[nodiscard]] std::vector<FilmCell> Cells() const;

  // From a press to the release the pointer is ignored. A press whose release has gone
  // elsewhere ends with the first move without the button.
  FilmMove Move(int x, int y, bool isPressed);
  // The name that a press there applies: none during a slide.
  [[nodiscard]] std::optional<int> PresetAt(int x, int y) const;
  // True if a repaint is due.
  bool Press(int x, int y);
  bool Release(int x, int y);
  // The pointer has been taken away.
  bool LosePointer();

 private:
  [[nodiscard]] bool IsInStrip(int x, int y) const;
  [[nodiscard]] int CellAt(int x) const;

  int width_ = kFilmWidth;
  int height_ = kFilmHeight;
  int count_ = 0;
  int page_ = 0;
  int hotCell_ = -1;
  bool pressLock_ = false;
  FilmSlide slide_ = FilmSlide::kStill;
  float progress_ = 0;  // 0..100
};

}  // namespace tarnwick
