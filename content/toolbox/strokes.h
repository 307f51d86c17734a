#pragma once
#include <cstdint>
#include <span>
#include <vector>

#include "toolbox/field.h"
#include "toolbox/hash.h"

namespace tarnwick::content {

// A point of a stroke: place and half width in pixels, strength 0..1. Between
// points both change evenly.
struct StrokePoint {
  float x, y;
  float radius;
  float strength;
};

// The cut of a stroke from side to side.
enum class StrokeProfile {
  kFlat,   // full to a rim one pixel soft: a scratch, a cut
  kRound,  // half a circle: a fibre, a wire, a weld
  kVee,    // a straight slope to both sides: a groove, a crease
};

// How a set of strokes is drawn.
struct StrokeLook {
  StrokeProfile profile = StrokeProfile::kFlat;
  float ragged = 0.0F;        // pixels by which noise moves the rims
  float raggedPeriod = 5.0F;  // and how long its bumps are
  std::uint32_t seed = 1;
};

// Strokes gathered first and drawn together.
class StrokeSet {
 public:
  // A line through the points; a single point gives a dot.
  void Add(std::span<const StrokePoint> points);
  [[nodiscard]] std::size_t SegmentCount() const { return segments_.size(); }

  // Each place of `target` takes the larger of its value and each stroke's, so
  // the order of strokes does not matter and crossings do not pile up.
  void Draw(const Sheet& sheet, Field& target, const StrokeLook& look = {}) const;

 private:
  struct Segment {
    float x0, y0, x1, y1;
    float r0, r1, s0, s1;
  };
  std::vector<Segment> segments_;
};

// A line that wanders: a hair, a fibre, the slip of a nail. Place and seed are
// fields too, so that dice thrown for them fall in the order of the fields:
// arguments of a call are worked out in an order that compilers choose.
struct Walk {
  float x = 0.0F, y = 0.0F;  // where it starts
  float length = 200.0F;     // pixels
  float heading = 0.0F;      // radians, 0 to the right, clockwise
  float bend = 0.0F;         // steady turn, radians for each 100 pixels
  float wobble = 0.0F;       // uneven turn on top, the same unit
  float wobblePeriod = 80.0F;
  float radius = 1.0F;    // at full pressure
  float strength = 1.0F;  // at full pressure
  float taper = 0.25F;    // share of the length, at each end, over which pressure fades
  float skip = 0.0F;      // 0 even pressure; 1 and above: it lifts off in places
  float skipPeriod = 40.0F;
  float step = 8.0F;  // pixels from point to point
  std::uint32_t seed = 1;
};

void AddWalk(StrokeSet& strokes, const Walk& walk);

}  // namespace tarnwick::content
