#pragma once
#include <cstdint>

#include "toolbox/field.h"
#include "toolbox/strokes.h"

namespace tarnwick::content {

// A wet patch of uneven outline.
struct Puddle {
  float x = 0.0F, y = 0.0F;  // its middle
  float radius = 100.0F;     // mean, pixels
  float uneven = 0.35F;      // how far the outline strays, in radii
  float bays = 1.6F;         // how many lobes, about, for each radian
  std::uint32_t seed = 1;

  // Pixels within the outline, about; negative outside.
  [[nodiscard]] float Inside(float px, float py) const;
};

// What a wet patch leaves when it has dried: colour is carried outwards and
// stays in a fine dark line along the border, with paler ones where drying
// stopped on its way in.
struct TideMark {
  float rim = 2.5F;    // breadth of the dark line, pixels
  float fade = 45.0F;  // how far colour reaches inwards from it
  float body = 0.22F;  // colour in the middle, 0..1
  float edge = 0.8F;   // colour of the line, 0..1

  // Strength 0..1, `inside` pixels from the border.
  [[nodiscard]] float operator()(float inside) const;
};

// The ring below a cup: broken, thicker on one side, with a fine outer line.
struct CupRing {
  float x = 0.0F, y = 0.0F;
  float radius = 150.0F;
  float breadth = 9.0F;
  float wet = 0.6F;  // share of the ring that is there, 0..1
  std::uint32_t seed = 1;

  [[nodiscard]] float At(float px, float py) const;
};

// Runs that ended in a drop, from places scattered over a sheet.
struct DripStyle {
  int count = 60;                               // on 2048 x 1536 pixels
  float minLength = 30.0F, maxLength = 220.0F;  // pixels; short ones are the more frequent
  float minRadius = 2.5F, maxRadius = 5.5F;     // half width
};
void AddDrips(StrokeSet& strokes, const Sheet& sheet, const DripStyle& style, std::uint32_t seed);

// Drops thrown out from a point: large and near, small and far, drawn out away
// from it.
void AddSplash(StrokeSet& strokes, float x, float y, float reach, int drops, std::uint32_t seed);

}  // namespace tarnwick::content
