#pragma once
#include <array>
#include <cstdint>

#include "settings/effect_settings.h"

namespace tarnwick {

// The four choices of where the result goes. One of them is offered on each page.
struct NewLayerOption {
  int boxId, labelId;
  const char* text;
  const char* tip;
  std::uint8_t EffectSettings::*field;
  int tab;
};

inline constexpr std::array<NewLayerOption, 4> kNewLayerOptions{{
    {1022, 9111, "Generate Effect in New Layer Above",
     "Generate the plug-in result in a new layer above current without affecting original image",
     &EffectSettings::NewLayerEffect, 0},
    {1023, 1112, "Generate Wash Effect in Mask Layer",
     "Apply wash effect to a new mask layer without affecting original image",
     &EffectSettings::MaskLayerEffect, 1},
    {1025, 1114, "Generate Effect in New Layer Above",
     "Apply surface effect to a new layer above without affecting original image",
     &EffectSettings::NewLayerSurface, 2},
    {1024, 1113, "Generate Background in New Layer Below",
     "Apply background effect in a new layer below without affecting original image",
     &EffectSettings::NewLayerBackground, 3},
}};

// Their places in kNewLayerOptions.
inline constexpr std::size_t kMaskOption = 1;
inline constexpr std::size_t kBackgroundOption = 3;

// Sets one of them. A mask wants the background below it, so turning that on turns
// the background's on too; turning it off leaves it.
inline void SetNewLayerOption(EffectSettings& settings, std::size_t option, bool isOn) {
  settings.*kNewLayerOptions[option].field = isOn ? 1 : 0;
  if (option == kMaskOption && isOn) settings.NewLayerBackground = 1;
}

// Whether the user may choose one, in a host that can make layers or cannot. A mask
// needs a layer with transparency.
[[nodiscard]] inline bool IsOptionOffered(std::size_t option, bool hostMakesLayers, int planes,
                                          bool isCmyk) {
  if (!hostMakesLayers) return false;
  return option != kMaskOption || planes >= (isCmyk ? 5 : 4);
}

}  // namespace tarnwick
