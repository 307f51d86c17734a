#include "controls/models/pointer_tracking.h"

namespace tarnwick {
namespace {

constexpr std::uint8_t kIdleState = 0, kHoveredState = 1, kPressedState = 2;

}  // namespace

TrackingStep ButtonTracking::Move(bool isInside, bool isLeftDown) {
  if (isLeftDown) return {};
  if (state == kIdleState) {
    state = kHoveredState;
    return {.capture = true, .redraw = true};
  }
  if (isInside) return {.capture = true};
  state = kIdleState;
  return {.release = true, .redraw = true};
}

TrackingStep ButtonTracking::Press() {
  state = kPressedState;
  return {.capture = true, .redraw = true};
}

TrackingStep ButtonTracking::Release() {
  if (state != kPressedState) return {.release = true};
  if (isToggle) latched = !latched;
  state = kIdleState;
  return {.release = true, .redraw = true, .notify = true};
}

TrackingStep LabelTracking::Move(bool isInside) {
  if (isInside) {
    if (state == kHoveredState || state == kPressedState) return {};
    state = kHoveredState;
    return {.capture = true, .redraw = true};
  }
  if (state != kPressedState) state = kIdleState;
  return {.release = true, .redraw = true};
}

TrackingStep LabelTracking::Release() {
  if (state != kPressedState) state = kIdleState;
  return {.release = true, .redraw = true, .notify = true};
}

}  // namespace tarnwick
