#pragma once
#include <cstdint>

#include "toolbox/strokes.h"

namespace tarnwick::content {

// Ferns of ice as they grow on a cold pane: a stem that bends, feathers to both
// sides of it, barbs on those. None grows through another: it ends there.
struct FrostStyle {
  int tries = 900;           // places where one may begin, whatever the sheet's size
  float minLength = 70.0F;   // of a stem, pixels: the last ones
  float maxLength = 900.0F;  // and the first
  float spread = 0.28F;      // longest feather, in shares of its stem
  float pace = 8.0F;         // pixels of stem from feather to feather
  float angle = 0.82F;       // radians between feather and stem
  float bend = 0.20F;        // turn of a stem, radians for each 100 pixels
};

// Adds ferns one after the other, the longest first, in one fixed order by
// `seed`. `cold` tells where they can begin: a share `cold` (0..1) of the tries
// there succeeds. They grow away from the nearest rim, more or less.
void AddFrost(StrokeSet& strokes, const Sheet& sheet, const Field& cold, const FrostStyle& style,
              std::uint32_t seed);

}  // namespace tarnwick::content
