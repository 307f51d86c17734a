#include "dialog/models/preset_choice.h"

namespace tarnwick {

void ForgetColorNames(PresetKind kind, SettingsSession& session) {
  const bool isWhole = kind == PresetKind::kBasic || kind == PresetKind::kUser;
  if (isWhole || kind == PresetKind::kSurface) session.SurfaceColorCategory = kCustomCategory;
  if (isWhole || kind == PresetKind::kBackground || kind == PresetKind::kBackPalette) {
    session.BackgroundColorCategory = kCustomCategory;
  }
}

KeptLayers LayersThatStay(PresetKind kind, const EffectSettings& settings) {
  const bool isSurface = kind == PresetKind::kSurface;
  const bool isBackground = kind == PresetKind::kBackground;
  return {.washes = settings.WashUse == 0 || isSurface || isBackground,
          .surfaces = settings.SurfaceUse == 0 || isBackground,
          .background = settings.BackgroundUse == 0 || isSurface};
}

}  // namespace tarnwick
