#pragma once
#include <cstdint>

namespace tarnwick {

// What the pointer does to buttons and labels, without a window.

// An inside that includes the right and the bottom edge.
[[nodiscard]] constexpr bool IsInside(int x, int y, int width, int height) {
  return x >= 0 && y >= 0 && x <= width && y <= height;
}

// What a window has to do after an event.
struct TrackingStep {
  bool capture = false;
  bool release = false;
  bool redraw = false;
  bool notify = false;
};

struct ButtonTracking {
  std::uint8_t state = 0;  // ControlState
  bool isToggle = false;
  bool latched = false;

  TrackingStep Move(bool isInside, bool isLeftDown);
  TrackingStep Press();
  // Fires wherever the pointer is: only the press has to have been inside.
  TrackingStep Release();
};

// A label that follows the pointer. A pressed state marks the current choice; the
// pointer never takes it away.
struct LabelTracking {
  std::uint8_t state = 0;

  TrackingStep Move(bool isInside);
  TrackingStep Release();
};

}  // namespace tarnwick
