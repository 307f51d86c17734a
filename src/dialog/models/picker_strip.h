#pragma once
#include <optional>
#include <vector>

#include "dialog/models/dialog_layout.h"

namespace tarnwick {

// The strip of page numbers below the cells of the full-size picker. Pixels of the strip.
// `scale` is 1 or more, by which fonts grow: the numbers need room in step with it.

inline constexpr int kFirstPageCommand = 100;
inline constexpr int kLastPageCommand = 101;
inline constexpr int kNextPageCommand = 102;
inline constexpr int kPreviousPageCommand = 103;
inline constexpr int kPageCommands = 200;  // plus the page, from 0

struct PageLabel {
  int page = 0;  // from 0; its text is one more
  int x = 0;
  int width = 0;
};

// In the order of the pages, for each run of them. Of more than 21 pages some are left
// out: a few round the current one and at both ends stay, or those at the ends alone.
[[nodiscard]] std::vector<PageLabel> PageLabels(int pageCount, int currentPage, int stripWidth,
                                                float scale);

// What stands at the ends, and where the rest runs.
struct StripPlaces {
  Place first, last, previous, next;
  int labelTop = 0, labelHeight = 0;
  int dotsLeft = 0, dotsRight = 0, dotsY = 0;  // a dot at every tenth pixel
};
[[nodiscard]] StripPlaces StripPlacesIn(int width, int height, float scale);

// The page that a command of the strip goes to; nothing for a command it does not have.
[[nodiscard]] std::optional<int> PageOfCommand(int command, int currentPage, int pageCount);

}  // namespace tarnwick
