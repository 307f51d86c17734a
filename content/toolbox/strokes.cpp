#include "toolbox/strokes.h"

#include <algorithm>

#include "toolbox/maths.h"
#include "toolbox/noise.h"

namespace tarnwick::content {
namespace {

float Across(StrokeProfile profile, float distance, float radius) {
  // Wires and grooves thinner than a pixel are lower instead of narrower.
  switch (profile) {
    case StrokeProfile::kRound: {
      const float t = distance / (radius + 0.5F);
      return t >= 1.0F ? 0.0F : Sqrt(1.0F - t * t) * Min(1.0F, radius + 0.5F);
    }
    case StrokeProfile::kVee:
      return Max(0.0F, 1.0F - distance / (radius + 0.5F)) * Min(1.0F, radius + 0.5F);
    case StrokeProfile::kFlat:
      break;
  }
  // The part of a pixel that lies within the line.
  return Max(0.0F, Min(distance + 0.5F, radius) - Max(distance - 0.5F, -radius));
}

}  // namespace

void StrokeSet::Add(std::span<const StrokePoint> points) {
  if (points.size() == 1) {
    const StrokePoint& p = points[0];
    segments_.push_back({p.x, p.y, p.x, p.y, p.radius, p.radius, p.strength, p.strength});
  }
  for (std::size_t i = 1; i < points.size(); ++i) {
    const StrokePoint& a = points[i - 1];
    const StrokePoint& b = points[i];
    if (a.strength <= 0.0F && b.strength <= 0.0F) continue;
    if (Abs(a.radius - b.radius) >= Length(b.x - a.x, b.y - a.y)) {
      // The larger end swallows the smaller: between them is no cone to draw.
      const StrokePoint& p = a.radius > b.radius ? a : b;
      segments_.push_back({p.x, p.y, p.x, p.y, p.radius, p.radius, p.strength, p.strength});
      continue;
    }
    segments_.push_back({a.x, a.y, b.x, b.y, a.radius, b.radius, a.strength, b.strength});
  }
}

void StrokeSet::Draw(const Sheet& sheet, Field& target, const StrokeLook& look) const {
  const int width = target.Width();
  ForRows(sheet.pool, 0, target.Height(), [&](int first, int last) {
    for (const Segment& s : segments_) {
      const float reach = Max(s.r0, s.r1) + 1.0F + look.ragged;
      const int top = std::max(first, FloorInt(Min(s.y0, s.y1) - reach));
      const int bottom = std::min(last, FloorInt(Max(s.y0, s.y1) + reach) + 2);
      if (top >= bottom) continue;
      const int left = std::max(0, FloorInt(Min(s.x0, s.x1) - reach));
      const int right = std::min(width, FloorInt(Max(s.x0, s.x1) + reach) + 2);
      const float ax = s.x1 - s.x0;
      const float ay = s.y1 - s.y0;
      const float square = ax * ax + ay * ay;
      const float inverse = square > 0.0F ? 1.0F / square : 0.0F;
      for (int y = top; y < bottom; ++y) {
        float* row = target.Row(y);
        const float py = static_cast<float>(y) - s.y0;
        for (int x = left; x < right; ++x) {
          const float px = static_cast<float>(x) - s.x0;
          const float t = Clamp01((px * ax + py * ay) * inverse);
          const float dx = px - ax * t;
          const float dy = py - ay * t;
          const float square2 = dx * dx + dy * dy;
          if (square2 >= reach * reach) continue;
          float distance = Sqrt(square2);
          if (look.ragged > 0.0F) {
            distance += GradientNoise(static_cast<float>(x) / look.raggedPeriod,
                                      static_cast<float>(y) / look.raggedPeriod, look.seed) *
                        look.ragged;
          }
          const float value =
              Across(look.profile, Max(distance, 0.0F), Mix(s.r0, s.r1, t)) * Mix(s.s0, s.s1, t);
          if (value > row[x]) row[x] = value;
        }
      }
    }
  });
}

void AddWalk(StrokeSet& strokes, const Walk& walk) {
  const std::uint32_t seed = walk.seed;
  float x = walk.x;
  float y = walk.y;
  const int steps = std::max(1, FloorInt(walk.length / walk.step + 0.5F));
  std::vector<StrokePoint> points;
  points.reserve(static_cast<std::size_t>(steps) + 1);
  float heading = walk.heading;
  for (int i = 0; i <= steps; ++i) {
    const float along = static_cast<float>(i) * walk.step;
    const float share = static_cast<float>(i) / static_cast<float>(steps);
    float pressure = 1.0F;
    if (walk.taper > 0.0F) {
      pressure = Min(1.0F, Min(share, 1.0F - share) / walk.taper);
      pressure = pressure * (2.0F - pressure);
    }
    if (walk.skip > 0.0F) {
      pressure *= Clamp01(1.0F + walk.skip * LineNoise(along / walk.skipPeriod, seed + 1) -
                          0.5F * walk.skip);
    }
    points.push_back({x, y, walk.radius * (0.4F + 0.6F * pressure), walk.strength * pressure});
    const float turn = walk.bend + walk.wobble * LineNoise(along / walk.wobblePeriod, seed + 2);
    heading += turn * walk.step * 0.01F;
    x += Cos(heading) * walk.step;
    y += Sin(heading) * walk.step;
  }
  strokes.Add(points);
}

}  // namespace tarnwick::content
