#include "toolbox/fur.h"

#include <algorithm>

namespace tarnwick::content {

void Fur::Lay(const Hair& hair, const FurStyle& style, int first, int last) {
  const float length = style.length * (0.7F + 0.3F * Unit(Hash(hair.hash + 6)));
  const float bend = style.bend * (2.0F * Unit(Hash(hair.hash + 8)) - 1.0F);
  const float downX = -Sin(hair.heading);
  const float downY = Cos(hair.heading);
  const float endX = hair.x + downX * length;
  const float endY = hair.y + downY * length;
  const float around = style.radius + Abs(bend) + 1.0F;
  const int y0 = std::max(first, FloorInt(Min(hair.y, endY) - style.radius));
  const int y1 = std::min(last, FloorInt(Max(hair.y, endY) + style.radius) + 2);
  const int x0 = std::max(0, FloorInt(Min(hair.x, endX) - around));
  const int x1 = std::min(width_, FloorInt(Max(hair.x, endX) + around) + 2);
  for (int y = y0; y < y1; ++y) {
    FurSpot* row = spots_.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width_);
    const float dy = static_cast<float>(y) - hair.y;
    for (int x = x0; x < x1; ++x) {
      const float dx = static_cast<float>(x) - hair.x;
      const float t = (dx * downX + dy * downY) / length;
      if (t < 0.0F || t > 1.0F) continue;
      const float half = style.radius * (1.0F - 0.8F * t * t);
      const float across = (dx * downY - dy * downX - bend * t * t) / half;
      if (across <= -1.0F || across >= 1.0F) continue;
      row[x] = {hair.x, hair.y, t, across, hair.hash};
    }
  }
}

}  // namespace tarnwick::content
