#include "toolbox/tone.h"

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <vector>

namespace tarnwick::content {
namespace {

constexpr int kBins = 4096;

}  // namespace

float Levels::operator()(float v) const {
  float t = Ramp(black, white, v);
  if (gamma != 1.0F) t = Pow(t, 1.0F / gamma);
  return Mix(outBlack, outWhite, t);
}

Curve::Curve(std::initializer_list<Point> points) {
  assert(points.size() >= 1 && points.size() <= points_.size());
  for (const Point& point : points) points_[static_cast<std::size_t>(count_++)] = point;
}

float Curve::operator()(float v) const {
  if (v <= points_[0].x) return points_[0].y;
  for (int i = 1; i < count_; ++i) {
    const Point& a = points_[static_cast<std::size_t>(i) - 1];
    const Point& b = points_[static_cast<std::size_t>(i)];
    if (v <= b.x) return Mix(a.y, b.y, (v - a.x) / (b.x - a.x));
  }
  return points_[static_cast<std::size_t>(count_) - 1].y;
}

float Percentile(const Field& field, float share, float lo, float hi) {
  std::vector<std::uint32_t> bins(kBins);
  const float scale = static_cast<float>(kBins) / (hi - lo);
  for (int y = 0; y < field.Height(); ++y) {
    const float* row = field.Row(y);
    for (int x = 0; x < field.Width(); ++x) {
      const float bin = Clamp((row[x] - lo) * scale, 0.0F, static_cast<float>(kBins - 1));
      ++bins[static_cast<std::size_t>(bin)];
    }
  }
  const double wanted =
      static_cast<double>(share) * static_cast<double>(field.Width()) * field.Height();
  double seen = 0.0;
  for (int i = 0; i < kBins; ++i) {
    seen += bins[static_cast<std::size_t>(i)];
    if (seen > wanted) return lo + static_cast<float>(i) / scale;
  }
  return hi;
}

void StretchTo(const Sheet& sheet, Field& field, float lowShare, float highShare) {
  if (field.Width() == 0 || field.Height() == 0) return;
  float lo = field(0, 0);
  float hi = lo;
  for (int y = 0; y < field.Height(); ++y) {
    const auto [low, high] = std::minmax_element(field.Row(y), field.Row(y) + field.Width());
    lo = Min(lo, *low);
    hi = Max(hi, *high);
  }
  if (!(hi > lo)) return;
  const float from = Percentile(field, lowShare, lo, hi);
  const float to = Percentile(field, highShare, lo, hi);
  if (!(to > from)) return;
  Repaint(sheet, field, [&](Spot p) { return (field(p) - from) / (to - from); });
}

}  // namespace tarnwick::content
