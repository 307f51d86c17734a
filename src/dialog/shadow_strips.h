#pragma once
#include <windows.h>

#include <cstdint>
#include <vector>

#include "dialog/models/shadow_strip.h"

namespace tarnwick {

// The strips above and below the pane, ready to be put on the screen.
class ShadowStrips {
 public:
  // Takes the shade from a bitmap of kShadeColumns by kStripRows; one that is not
  // there leaves the strips black.
  void LoadShade(HBITMAP bitmap);

  [[nodiscard]] const StripShade& Shade() const { return shade_; }

  // For another width of the pane's frame.
  void SetWidth(int width);

  void Paint(HDC dc, int x, int upperTop, int lowerTop) const;

 private:
  StripShade shade_{};
  int width_ = 0;
  std::vector<std::uint8_t> upper_;
  std::vector<std::uint8_t> lower_;
};

}  // namespace tarnwick
