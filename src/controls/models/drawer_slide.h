#pragma once
#include <cstdint>

namespace tarnwick {

// How a panel slides over the dialog from the left, and back: eleven moves each way.
class DrawerSlide {
 public:
  DrawerSlide() = default;

  void StartIn() { *this = {kIn, 0}; }
  void StartOut() { *this = {kOut, 0}; }

  struct Step {
    bool isMove = false;  // to `shift` from the panel's place
    int shift = 0;        // pixels, 0 or to the left
    bool isLast = false;  // of the moves
    bool isIn = false;    // it has come in, once nothing is left to move
    bool isOut = false;   // it has gone out
  };
  // At each tick of the timer, for a panel of this width.
  Step Tick(int width) {
    const auto state = state_;
    if (state == kStill) return {};
    if (progress_ > kWhole) {
      state_ = kStill;
      return {.isIn = state == kIn, .isOut = state == kOut};
    }
    const float part = progress_ / kWhole;
    const float gone = state == kIn ? 1.0F - part : part;
    const bool isLast = progress_ == kWhole;
    progress_ += kPerTick;
    return {.isMove = true,
            .shift = static_cast<int>(-gone * static_cast<float>(width)),
            .isLast = isLast};
  }

  [[nodiscard]] bool IsStill() const { return state_ == kStill; }
  [[nodiscard]] bool IsGoingOut() const { return state_ == kOut; }

 private:
  static constexpr std::uint32_t kStill = 0;
  static constexpr std::uint32_t kIn = 1;
  static constexpr std::uint32_t kOut = 0xFFFFFFFF;
  static constexpr float kWhole = 100.0F;
  static constexpr float kPerTick = 10.0F;

  DrawerSlide(std::uint32_t state, float progress) : state_(state), progress_(progress) {}

  std::uint32_t state_ = kStill;
  float progress_ = 0;
};

}  // namespace tarnwick
