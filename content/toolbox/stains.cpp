#include "toolbox/stains.h"

#include <algorithm>

#include "toolbox/maths.h"
#include "toolbox/noise.h"

namespace tarnwick::content {

float Puddle::Inside(float px, float py) const {
  const float dx = px - x;
  const float dy = py - y;
  const float far = Length(dx, dy);
  // Noise stays within 1.5: beyond that nothing needs working out.
  const float most = radius * (1.0F + 1.5F * uneven) - far;
  if (most < 0.0F) return most - 1.0F;
  const Fbm outline{radius / bays, 5, 0.5F, seed};
  return radius * (1.0F + uneven * outline(px, py)) - far;
}

float TideMark::operator()(float inside) const {
  if (inside <= -1.0F) return 0.0F;
  const float within = Clamp01(inside + 1.0F);
  const float line = edge * SmoothRamp(2.0F * rim, 0.5F * rim, inside);
  const float inward = Mix(body, 0.6F * edge, Exp(-Max(0.0F, inside) / fade));
  return within * Max(line, inward * SmoothRamp(0.0F, rim, inside));
}

float CupRing::At(float px, float py) const {
  const float dx = px - x;
  const float dy = py - y;
  const float far = Length(dx, dy);
  const float off = far - radius;
  if (Abs(off) > 3.0F * breadth + 4.0F || far < 1.0F) return 0.0F;
  // Noise of the direction alone, so that the ring varies along and not across.
  const float ux = dx / far;
  const float uy = dy / far;
  const Fbm along{1.3F, 5, 0.58F, seed};
  const float amount =
      SmoothRamp(1.0F - wet - 0.25F, 1.0F - wet + 0.25F, 0.5F + 0.9F * along(ux, uy));
  if (amount <= 0.0F) return 0.0F;
  const Fbm wander{0.9F, 3, 0.5F, seed + 7};
  const float breath = breadth * (0.35F + 0.65F * amount);
  const float d = off + 3.0F * wander(ux, uy);
  const float band = 0.45F * SmoothRamp(breath, 0.2F * breath, Abs(d));
  const float line = SmoothRamp(2.6F, 0.6F, Abs(d - breath)) * SmoothRamp(0.2F, 0.8F, amount);
  const float inner = 0.5F * SmoothRamp(1.8F, 0.4F, Abs(d + 0.8F * breath));
  return amount * Max(band, Max(line, inner));
}

void AddDrips(StrokeSet& strokes, const Sheet& sheet, const DripStyle& style, std::uint32_t seed) {
  const float share =
      static_cast<float>(sheet.width) * static_cast<float>(sheet.height) / (2048.0F * 1536.0F);
  const int count = std::max(1, FloorInt(static_cast<float>(style.count) * share + 0.5F));
  for (int i = 0; i < count; ++i) {
    Dice dice(seed, i);
    const float x = dice.Unit() * static_cast<float>(sheet.width);
    const float y = dice.Unit() * static_cast<float>(sheet.height);
    const float length = Mix(style.minLength, style.maxLength, Square(dice.Unit()));
    const float radius = dice.Between(style.minRadius, style.maxRadius);
    const StrokePoint points[] = {
        {x, y, radius * 0.5F, 0.0F},
        {x + dice.Around(0.0F, 1.5F), y + 0.5F * length, radius * 0.75F, 0.6F},
        {x + dice.Around(0.0F, 2.0F), y + length - radius, radius * 0.8F, 0.8F},
        {x + dice.Around(0.0F, 1.0F), y + length, radius * 1.25F, 1.0F}};
    strokes.Add(points);
  }
}

void AddSplash(StrokeSet& strokes, float x, float y, float reach, int drops, std::uint32_t seed) {
  for (int i = 0; i < drops; ++i) {
    Dice dice(seed, i);
    const float heading = dice.Between(0.0F, kTau);
    const float far = Square(dice.Unit());
    const float radius =
        (1.0F - 0.8F * far) * reach * 0.045F * (0.12F + 0.88F * Square(dice.Unit()));
    const float at = reach * (0.30F + 0.70F * far);
    const float tail = radius * dice.Between(0.0F, 3.0F) * far;
    const float ux = Cos(heading);
    const float uy = Sin(heading);
    const StrokePoint points[] = {{x + ux * (at - tail), y + uy * (at - tail),
                                   Max(radius * 0.4F, radius - 0.5F * tail), 1.0F},
                                  {x + ux * at, y + uy * at, radius, 1.0F}};
    strokes.Add(points);
  }
}

}  // namespace tarnwick::content
