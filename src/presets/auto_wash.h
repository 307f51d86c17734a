#pragma once
#include <cstdint>

#include "presets/auto_dice.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// The fields of one wash, so that both are thrown by one routine.
struct WashFields {
  char (&fileName)[kTextureNameSize];
  std::uint8_t& type;
  std::uint32_t& stainColor;
  std::int32_t& intensity;
  std::uint8_t& flipHor;
  std::uint8_t& flipVer;
  std::uint8_t& invert;
  std::int32_t& angle;
  std::int32_t& coverage;
  std::int32_t& coverageScale;
  std::int32_t& randomize;
  bool isSecond;
};

[[nodiscard]] WashFields FirstWash(EffectSettings& settings);
[[nodiscard]] WashFields SecondWash(EffectSettings& settings);

// All but the texture, which is drawn before. `chance` is 0..999: how late in the
// list of kinds the wash's own will be, weighted towards the first.
void ThrowWash(int chance, AutoDice& dice, const WashFields& wash);

}  // namespace tarnwick
