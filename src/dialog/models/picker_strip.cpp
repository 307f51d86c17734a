#include "dialog/models/picker_strip.h"

#include <algorithm>

namespace tarnwick {
namespace {

constexpr int kEdge = 104;
constexpr int kMostWithoutGap = 21;
constexpr int kNearEnd = 12;
constexpr int kBeforeCurrent = 6;
constexpr int kRoundCurrent = 11;
constexpr int kAtEnds = 5;
constexpr int kAtEndsAlone = 13;

int LabelWidth(int page, float scale) {
  int digits = 1;
  for (int number = page + 1; number >= 10; number /= 10) ++digits;
  return ScaledLength((10 - std::min(digits, 2)) * digits, scale);
}

int RunWidth(int first, int count, float scale) {
  int width = 0;
  for (int page = first; page < first + count; ++page) width += LabelWidth(page, scale);
  return width;
}

void AddRun(int first, int count, int x, float scale, std::vector<PageLabel>& labels) {
  for (int page = first; page < first + count; ++page) {
    const int width = LabelWidth(page, scale);
    labels.push_back({page, x, width});
    x += width;
  }
}

}  // namespace

std::vector<PageLabel> PageLabels(int pageCount, int currentPage, int stripWidth, float scale) {
  std::vector<PageLabel> labels;
  const int left = ScaledLength(kEdge, scale);
  if (pageCount <= kMostWithoutGap) {
    AddRun(0, std::max(pageCount, 0), left, scale, labels);
    return labels;
  }
  const auto rightRun = [&](int count) {
    return stripWidth - left - RunWidth(pageCount - count, count, scale);
  };
  if (currentPage < kNearEnd || currentPage >= pageCount - kNearEnd) {
    AddRun(0, kAtEndsAlone, left, scale, labels);
    AddRun(pageCount - kAtEndsAlone, kAtEndsAlone, rightRun(kAtEndsAlone), scale, labels);
    return labels;
  }
  AddRun(0, kAtEnds, left, scale, labels);
  const int first = currentPage - kBeforeCurrent;
  // Numbers of three digits would run into those at the end.
  const int middle = std::min(stripWidth / 2 - ScaledLength(120, scale),
                              rightRun(kAtEnds) - RunWidth(first, kRoundCurrent, scale));
  AddRun(first, kRoundCurrent, middle, scale, labels);
  AddRun(pageCount - kAtEnds, kAtEnds, rightRun(kAtEnds), scale, labels);
  return labels;
}

StripPlaces StripPlacesIn(int width, int height, float scale) {
  constexpr int kTop = 4;
  constexpr int kButtonWidth = 20, kButtonHeight = 15;
  StripPlaces places;
  // What is larger stands in the middle, and so does what does not grow beside it.
  const bool isLarge = scale > 1;
  places.labelHeight = ScaledLength(15, scale);
  places.labelTop = isLarge ? std::max((height - places.labelHeight) / 2, 0) : kTop;
  const int buttonTop = isLarge ? std::max((height - kButtonHeight) / 2, 0) : kTop;
  const int wordWidth = ScaledLength(30, scale);
  places.first = {0, buttonTop, kButtonWidth, kButtonHeight};
  places.last = {width - kButtonWidth, buttonTop, kButtonWidth, kButtonHeight};
  places.previous = {27, places.labelTop, wordWidth, places.labelHeight};
  places.next = {width - 32 - wordWidth, places.labelTop, wordWidth, places.labelHeight};
  places.dotsLeft = ScaledLength(kEdge, scale);
  places.dotsRight = width - places.dotsLeft;
  places.dotsY = isLarge ? height / 2 : height - 10;
  return places;
}

std::optional<int> PageOfCommand(int command, int currentPage, int pageCount) {
  const int last = std::max(pageCount - 1, 0);
  switch (command) {
    case kFirstPageCommand:
      return 0;
    case kLastPageCommand:
      return last;
    case kNextPageCommand:
      return std::min(currentPage + 1, last);
    case kPreviousPageCommand:
      return std::max(currentPage - 1, 0);
    default:
      if (command < kPageCommands) return std::nullopt;
      return std::min(command - kPageCommands, last);
  }
}

}  // namespace tarnwick
