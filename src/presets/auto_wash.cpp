#include "presets/auto_wash.h"

#include <algorithm>
#include <cstdlib>

namespace tarnwick {
namespace {

// The strongest and the mildest wash are 85 away from 100; most are near it.
std::int32_t IntensityOf(int r) {
  const int half = r / 2;
  const int distance = (half <= 200 ? half : 100) - 100;
  const double share = std::abs(distance) / 100.0;
  return static_cast<std::int32_t>(share * 0.85 * share * distance + 100);
}

// 0..4. The last one has no name; see auto_randomize.h.
std::uint8_t KindOf(int chance) {
  const double share = chance / 1000.0;
  return static_cast<std::uint8_t>(share * share * 4 + 0.5);
}

std::uint32_t ThrowColor(AutoDice& dice) {
  std::uint32_t color = 0;
  for (int i = 0; i < 3; ++i) color = color * 256 + static_cast<std::uint32_t>(dice.Below(255));
  return color;
}

void ThrowCoverage(int r, AutoDice& dice, const WashFields& wash) {
  const int c = dice.Below(500);
  if (c < 100) wash.coverage = static_cast<std::int32_t>(c / 100.0 * -c);
  if (wash.coverage == 0) return;
  if (wash.isSecond) {
    const int q = dice.Below(1000);
    wash.coverageScale = std::min(q / 5, 100);
    wash.randomize = q;
  } else {
    wash.coverageScale = std::min(dice.Below(250), 100);
    wash.randomize = r;
  }
}

}  // namespace

WashFields FirstWash(EffectSettings& s) {
  return {s.WashFileName1, s.WashType1,          s.WashStainColor1, s.WashIntensity1,
          s.WashFlipHor1,  s.WashFlipVer1,       s.WashInvert1,     s.WashAngle1,
          s.WashCoverage1, s.WashCoverageScale1, s.WashRandomize1,  false};
}

WashFields SecondWash(EffectSettings& s) {
  return {s.WashFileName2, s.WashType2,          s.WashStainColor2, s.WashIntensity2,
          s.WashFlipHor2,  s.WashFlipVer2,       s.WashInvert2,     s.WashAngle2,
          s.WashCoverage2, s.WashCoverageScale2, s.WashRandomize2,  true};
}

// The throws stand in statements of their own: their order is part of the look.
void ThrowWash(int chance, AutoDice& dice, const WashFields& wash) {
  wash.type = KindOf(chance);
  wash.stainColor = ThrowColor(dice);
  const int r = dice.Below(1000);
  wash.intensity = IntensityOf(r);
  wash.flipHor = static_cast<std::uint8_t>(r & 1);
  wash.flipVer = static_cast<std::uint8_t>(dice.Throw() & 1);
  const bool inverts = wash.isSecond ? dice.Below(10) == 1 : dice.Below(100) > 95;
  wash.invert = static_cast<std::uint8_t>(inverts ? 1 : 0);
  wash.angle = (r & 3) * 90;
  ThrowCoverage(r, dice, wash);
}

}  // namespace tarnwick
