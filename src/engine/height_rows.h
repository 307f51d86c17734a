#pragma once
#include <algorithm>
#include <utility>
#include <vector>

#include "engine/relief_heights.h"

namespace tarnwick {

// The heights of a row and of the one that its light compares it with: the next
// one, or for the last row the one above. Walking down makes each row once.
class HeightRows {
 public:
  HeightRows(const ReliefHeights& heights, int width, int height)
      : heights_(heights),
        height_(height),
        row_(static_cast<std::size_t>(width)),
        next_(static_cast<std::size_t>(width)) {}

  void MoveTo(int y) {
    nextIsAbove_ = y + 1 >= height_;
    const int other = nextIsAbove_ ? std::max(y - 1, 0) : y + 1;
    if (nextAt_ == y) {
      row_.swap(next_);
      std::swap(rowAt_, nextAt_);
    } else if (rowAt_ != y) {
      Load(row_, rowAt_, y);
    }
    if (nextAt_ != other) Load(next_, nextAt_, other);
  }
  [[nodiscard]] const std::uint8_t* Row() const { return row_.data(); }
  [[nodiscard]] const std::uint8_t* Next() const { return next_.data(); }
  [[nodiscard]] bool NextIsAbove() const { return nextIsAbove_; }

 private:
  using Samples = std::vector<std::uint8_t>;

  void Load(Samples& samples, int& at, int y) {
    heights_.Row(y, static_cast<int>(samples.size()), samples.data());
    at = y;
  }

  const ReliefHeights& heights_;
  int height_;
  Samples row_;
  Samples next_;
  int rowAt_ = -1;
  int nextAt_ = -1;
  bool nextIsAbove_ = false;
};

}  // namespace tarnwick
