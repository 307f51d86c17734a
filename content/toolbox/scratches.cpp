#include "toolbox/scratches.h"

#include <algorithm>

#include "toolbox/maths.h"

namespace tarnwick::content {
namespace {

int CountFor(const Sheet& sheet, int count) {
  const float share =
      static_cast<float>(sheet.width) * static_cast<float>(sheet.height) / (2048.0F * 1536.0F);
  return std::max(1, FloorInt(static_cast<float>(count) * share + 0.5F));
}

float Heading(Dice& dice, float heading, float spread, float stray) {
  return dice.Chance(stray) ? dice.Between(0.0F, kTau) : dice.Around(heading, spread);
}

}  // namespace

void AddScratches(StrokeSet& strokes, const Sheet& sheet, const ScratchStyle& style,
                  std::uint32_t seed) {
  const int count = CountFor(sheet, style.count);
  for (int i = 0; i < count; ++i) {
    Dice dice(seed, i);
    const float x = dice.Between(-0.05F, 1.0F) * static_cast<float>(sheet.width);
    const float y = dice.Between(-0.02F, 1.02F) * static_cast<float>(sheet.height);
    // Short and faint ones are the more frequent.
    const float size = Square(dice.Unit());
    Walk walk;
    walk.length = Mix(style.minLength, style.maxLength, size);
    walk.heading = Heading(dice, style.heading, style.spread, style.stray);
    walk.bend = dice.Around(0.0F, 8.0F / (60.0F + walk.length));
    walk.wobble = dice.Between(0.0F, 0.08F);
    walk.radius = Mix(style.minRadius, style.maxRadius, Square(dice.Unit()));
    walk.strength = dice.Between(style.minStrength, style.maxStrength);
    walk.taper = dice.Between(0.15F, 0.45F);
    walk.skip = style.skip * dice.Between(0.3F, 1.3F);
    walk.skipPeriod = dice.Between(0.04F, 0.2F) * walk.length + 12.0F;
    const int lines = style.companions > 1 && dice.Chance(0.4F)
                          ? 2 + FloorInt(dice.Unit() * static_cast<float>(style.companions - 1))
                          : 1;
    float aside = 0.0F;
    float back = 0.0F;
    for (int k = 0; k < lines; ++k) {
      walk.x = x - Sin(walk.heading) * aside + Cos(walk.heading) * back;
      walk.y = y + Cos(walk.heading) * aside + Sin(walk.heading) * back;
      walk.seed = dice.Word();
      AddWalk(strokes, walk);
      aside += dice.Between(3.0F, 10.0F);
      back = dice.Between(0.0F, 0.3F) * walk.length;
      walk.radius *= dice.Between(0.5F, 0.9F);
      walk.length *= dice.Between(0.4F, 0.9F);
    }
  }
}

void AddScuffs(StrokeSet& strokes, const Sheet& sheet, const ScuffStyle& style,
               std::uint32_t seed) {
  const int count = CountFor(sheet, style.count);
  for (int i = 0; i < count; ++i) {
    Dice dice(seed, i);
    const float cx = dice.Unit() * static_cast<float>(sheet.width);
    const float cy = dice.Unit() * static_cast<float>(sheet.height);
    const float heading = Heading(dice, style.heading, style.spread, style.stray);
    const float along = Mix(style.minLength, style.maxLength, Square(dice.Unit()));
    const float across = along * style.slender * dice.Between(0.15F, 0.45F);
    const float share = Square(dice.Unit());
    const int lines =
        style.minLines + FloorInt(share * static_cast<float>(style.maxLines - style.minLines));
    // Lines of one scuff come from one stroke of the hand: same bend, same skew.
    const float bend = dice.Around(0.0F, 10.0F / along);
    for (int k = 0; k < lines; ++k) {
      const float u = dice.Around(-0.4F, 0.35F) * along;
      const float v = dice.Around(0.0F, 0.5F) * across;
      Walk walk;
      walk.length = dice.Between(0.15F, 0.9F) * along;
      walk.heading = heading + dice.Around(0.0F, 0.07F);
      walk.bend = bend;
      walk.radius = Mix(style.minRadius, style.maxRadius, Square(dice.Unit()));
      walk.strength = Mix(style.minStrength, style.maxStrength, Square(dice.Unit()));
      walk.taper = 0.4F;
      walk.skip = 1.0F;
      walk.skipPeriod = 25.0F;
      walk.x = cx + Cos(heading) * u - Sin(heading) * v;
      walk.y = cy + Sin(heading) * u + Cos(heading) * v;
      walk.seed = dice.Word();
      AddWalk(strokes, walk);
    }
  }
}

}  // namespace tarnwick::content
