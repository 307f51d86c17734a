#pragma once
#include <string_view>

#include "toolbox/strokes.h"

namespace tarnwick::content {

// Capitals and figures drawn with a pen of even width, for print, stamps and
// signs that only have to look like writing. Other characters leave a gap.
struct Lettering {
  float x = 0.0F, y = 0.0F;  // left end of the base line
  float height = 60.0F;      // of a capital, pixels
  float narrow = 0.62F;      // breadth of a letter to its height
  float space = 0.24F;       // between letters, in heights
  float heading = 0.0F;      // radians, of the base line at its left end
  float bend = 0.0F;         // radians of turn for each pixel: 1 / radius sets it on a circle
  float radius = 4.0F;       // half breadth of the pen
  float strength = 1.0F;
};

// Length in pixels that `text` takes on its base line.
[[nodiscard]] float LengthOf(const Lettering& style, std::string_view text);

void AddLettering(StrokeSet& strokes, const Lettering& style, std::string_view text);

}  // namespace tarnwick::content
