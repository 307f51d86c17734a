#pragma once
#include <cstdint>

#include "toolbox/strokes.h"

namespace tarnwick::content {

// Single scratches all over a sheet.
struct ScratchStyle {
  int count = 30;                                // on 2048 x 1536 pixels; fewer on a smaller sheet
  float minLength = 100.0F, maxLength = 800.0F;  // pixels
  float heading = 0.0F;                          // radians, the favoured direction
  float spread = 0.3F;                           // about it
  float stray = 0.2F;                            // share that runs anywhere
  float minRadius = 0.4F, maxRadius = 1.5F;      // pixels
  float minStrength = 0.5F, maxStrength = 1.0F;
  float skip = 1.0F;   // see Walk
  int companions = 1;  // up to so many side by side
};
void AddScratches(StrokeSet& strokes, const Sheet& sheet, const ScratchStyle& style,
                  std::uint32_t seed);

// Scuffs: where something rubbed, many hair lines lie side by side.
struct ScuffStyle {
  int count = 30;                               // places, as above
  float minLength = 50.0F, maxLength = 250.0F;  // of a place, along its lines
  float heading = 0.0F;
  float spread = 0.3F;
  float stray = 0.2F;
  float slender = 1.0F;  // breadth of a place, 1: a third of its length
  int minLines = 20, maxLines = 100;
  float minRadius = 0.2F, maxRadius = 0.6F;
  float minStrength = 0.2F, maxStrength = 0.8F;
};
void AddScuffs(StrokeSet& strokes, const Sheet& sheet, const ScuffStyle& style, std::uint32_t seed);

}  // namespace tarnwick::content
