#pragma once
#include <cstdint>

#include "toolbox/strokes.h"

namespace tarnwick::content {

// A line of joined-up writing by a steel pen: words of loops and arches that
// nobody can read. Down strokes press, up strokes are hair lines.
struct Script {
  float x = 0.0F, y = 0.0F;  // left end of the base line
  float length = 600.0F;     // pixels
  float xHeight = 14.0F;     // height of an "a"
  float slant = 0.55F;       // sideways for each pixel up
  float heading = 0.0F;      // radians, of the base line
  float radius = 1.3F;       // half breadth of a down stroke
  float strength = 1.0F;     // of the darkest ink; the pen runs dry and is dipped
  std::uint32_t seed = 1;
};

void AddScript(StrokeSet& strokes, const Script& script);

}  // namespace tarnwick::content
