#include "toolbox/handwriting.h"

#include <array>
#include <span>
#include <vector>

#include "toolbox/maths.h"
#include "toolbox/noise.h"

namespace tarnwick::content {
namespace {

struct Knot {
  float x, y;  // in heights of an "a", y upwards
};

// Small letters as a pen moves through them; the last point leads on.
constexpr Knot kE[] = {{0.0F, 0.0F},   {0.5F, 0.35F},  {0.72F, 0.8F}, {0.45F, 1.0F},
                       {0.22F, 0.55F}, {0.35F, 0.08F}, {0.7F, 0.0F},  {0.95F, 0.2F}};
constexpr Knot kL[] = {{0.0F, 0.0F}, {0.45F, 0.8F}, {0.68F, 1.9F}, {0.48F, 2.3F},
                       {0.3F, 1.6F}, {0.3F, 0.3F},  {0.5F, 0.0F},  {0.85F, 0.2F}};
constexpr Knot kN[] = {{0.0F, 0.1F},  {0.2F, 0.95F}, {0.3F, 0.8F},  {0.28F, 0.0F}, {0.5F, 0.75F},
                       {0.75F, 1.0F}, {0.9F, 0.7F},  {0.9F, 0.12F}, {1.1F, 0.05F}, {1.3F, 0.25F}};
constexpr Knot kM[] = {{0.0F, 0.1F},  {0.2F, 0.95F}, {0.28F, 0.0F}, {0.5F, 0.9F},
                       {0.65F, 0.9F}, {0.68F, 0.0F}, {0.9F, 0.9F},  {1.1F, 0.95F},
                       {1.2F, 0.6F},  {1.2F, 0.1F},  {1.4F, 0.03F}, {1.6F, 0.25F}};
constexpr Knot kU[] = {{0.0F, 0.3F}, {0.22F, 1.0F}, {0.22F, 0.3F}, {0.45F, 0.0F},
                       {0.8F, 0.5F}, {0.9F, 1.0F},  {0.9F, 0.2F},  {1.2F, 0.15F}};
constexpr Knot kA[] = {{0.0F, 0.0F},   {0.6F, 0.92F}, {0.35F, 1.0F},  {0.1F, 0.5F}, {0.32F, 0.0F},
                       {0.72F, 0.45F}, {0.85F, 1.0F}, {0.82F, 0.15F}, {1.15F, 0.2F}};
constexpr Knot kG[] = {{0.0F, 0.1F},   {0.6F, 0.95F},  {0.3F, 1.0F},  {0.1F, 0.5F},
                       {0.4F, 0.05F},  {0.8F, 0.6F},   {0.82F, 1.0F}, {0.72F, -0.8F},
                       {0.42F, -1.3F}, {0.25F, -0.9F}, {1.05F, 0.15F}};
constexpr Knot kT[] = {{0.0F, 0.0F}, {0.35F, 0.9F}, {0.45F, 1.7F},
                       {0.4F, 0.4F}, {0.5F, 0.0F},  {0.85F, 0.2F}};
constexpr Knot kD[] = {{0.0F, 0.0F},  {0.6F, 0.92F}, {0.35F, 1.0F}, {0.1F, 0.5F}, {0.35F, 0.0F},
                       {0.75F, 0.6F}, {0.9F, 2.2F},  {0.85F, 0.2F}, {1.2F, 0.15F}};
constexpr Knot kS[] = {{0.0F, 0.0F},  {0.45F, 1.05F}, {0.6F, 0.5F},  {0.4F, 0.0F},
                       {0.15F, 0.1F}, {0.5F, 0.05F},  {0.85F, 0.25F}};
constexpr Knot kH[] = {{0.0F, 0.0F}, {0.5F, 1.2F}, {0.6F, 2.2F},  {0.4F, 2.0F},  {0.3F, 0.0F},
                       {0.5F, 0.7F}, {0.8F, 1.0F}, {0.92F, 0.6F}, {0.92F, 0.1F}, {1.25F, 0.2F}};
constexpr Knot kF[] = {{0.0F, 0.0F},  {0.5F, 1.3F},  {0.6F, 2.2F},  {0.4F, 2.0F},  {0.3F, 0.0F},
                       {0.3F, -1.2F}, {0.5F, -1.0F}, {0.45F, 0.0F}, {0.85F, 0.25F}};

constexpr std::array<std::span<const Knot>, 17> kHand = {kE, kN, kA, kU, kL, kE, kS, kT, kA,
                                                         kM, kG, kD, kN, kH, kU, kF, kE};

float Through(float a, float b, float c, float d, float t) {
  return b + 0.5F * t *
                 (c - a + t * (2.0F * a - 5.0F * b + 4.0F * c - d + t * (3.0F * (b - c) + d - a)));
}

}  // namespace

void AddScript(StrokeSet& strokes, const Script& script) {
  Dice dice(script.seed);
  const float ux = Cos(script.heading);
  const float uy = Sin(script.heading);
  float pen = 0.0F;     // along the base line, pixels
  float dipped = 0.0F;  // where the pen last went to the ink
  const float end = script.length;
  while (pen < end) {
    // A word: knots of all its letters, then a smooth line through them.
    std::vector<Knot> knots;
    const int letters = 2 + static_cast<int>(dice.Word() % 3U) + static_cast<int>(dice.Word() % 5U);
    const float first = pen;
    float at = pen;
    for (int i = 0; i < letters && at < end; ++i) {
      const auto shape = kHand[dice.Word() % kHand.size()];
      const float size = script.xHeight * dice.Between(0.9F, 1.1F);
      const float wide = dice.Between(0.85F, 1.15F);
      for (std::size_t k = i == 0 ? 0 : 1; k < shape.size(); ++k) {
        knots.push_back({at + size * wide * shape[k].x, size * shape[k].y});
      }
      at += size * wide * shape.back().x;
    }
    if (dice.Chance(0.22F) || pen - dipped > 500.0F) dipped = pen;
    std::vector<StrokePoint> line;
    const int count = static_cast<int>(knots.size());
    const auto knot = [&](int i) {
      return knots[static_cast<std::size_t>(i < 0 ? 0 : (i >= count ? count - 1 : i))];
    };
    for (int i = 0; i + 1 < count; ++i) {
      const Knot a = knot(i - 1), b = knot(i), c = knot(i + 1), d = knot(i + 2);
      for (int part = 0; part < 4; ++part) {
        const float t = static_cast<float>(part) * 0.25F;
        const float along = Through(a.x, b.x, c.x, d.x, t);
        const float up = Through(a.y, b.y, c.y, d.y, t) +
                         0.12F * script.xHeight * LineNoise(along / 90.0F, script.seed);
        const float down = Clamp01((b.y - c.y) / script.xHeight * 1.2F);
        const float dry = SmoothRamp(700.0F, 60.0F, along - dipped);
        const float side = along + script.slant * up;
        line.push_back({script.x + ux * side + uy * up, script.y + uy * side - ux * up,
                        script.radius * (0.45F + 0.55F * down),
                        script.strength * (0.45F + 0.25F * down + 0.30F * dry)});
      }
    }
    strokes.Add(line);
    pen = at + script.xHeight * dice.Between(0.7F, 1.3F);
    if (pen <= first) break;
  }
}

}  // namespace tarnwick::content
