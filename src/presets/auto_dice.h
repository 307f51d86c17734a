#pragma once
#include <cstdint>

namespace tarnwick {

// The dice of whatever is left to chance: the generator that stands behind
// rand() in the C runtime of Windows. Our own, so that one seed throws the same
// everywhere and nobody else draws in between.
class AutoDice {
 public:
  explicit AutoDice(std::uint32_t seed) : state_(seed) {}

  void Seed(std::uint32_t seed) { state_ = seed; }

  // 0..32767.
  [[nodiscard]] int Throw() {
    state_ = state_ * 214013U + 2531011U;
    return static_cast<int>(state_ >> 16 & 0x7FFFU);
  }

  // 0..n - 1, for n above 0. Not even where n divides 32768 badly; looks that
  // people know by their seed depend on that.
  [[nodiscard]] int Below(int n) { return Throw() % n; }

 private:
  std::uint32_t state_;
};

}  // namespace tarnwick
