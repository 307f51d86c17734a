#include "dialog/edits/active_effect.h"

#include <cstring>

#include "dialog/models/page_enable.h"

namespace tarnwick {

std::string LayerSlot::Name() const {
  return {fileName, strnlen(fileName, kTextureNameSize)};
}

LayerSlot WashSlot(EffectLayers& layers, EffectSettings& s, bool second) {
  if (second) {
    return {LayerKind::kWash, &layers.washes[1], s.WashFileName2, &s.WashScale2, &s.WashFlipVer2,
            &s.WashFlipHor2,  &s.WashOffsetX2,   &s.WashOffsetY2, &s.WashAngle2};
  }
  return {LayerKind::kWash, layers.washes.data(), s.WashFileName1, &s.WashScale1, &s.WashFlipVer1,
          &s.WashFlipHor1,  &s.WashOffsetX1,      &s.WashOffsetY1, &s.WashAngle1};
}

LayerSlot SurfaceSlot(EffectLayers& layers, EffectSettings& s, bool second) {
  if (second) {
    return {LayerKind::kSurface, &layers.surfaces[1], s.SurfaceFileName2,
            &s.SurfaceScale2,    &s.SurfaceFlipVer2,  &s.SurfaceFlipHor2,
            &s.SurfaceOffsetX2,  &s.SurfaceOffsetY2,  &s.SurfaceAngle2};
  }
  return {LayerKind::kSurface, layers.surfaces.data(), s.SurfaceFileName1,
          &s.SurfaceScale1,    &s.SurfaceFlipVer1,     &s.SurfaceFlipHor1,
          &s.SurfaceOffsetX1,  &s.SurfaceOffsetY1,     &s.SurfaceAngle1};
}

LayerSlot BackgroundSlot(EffectLayers& layers, EffectSettings& s) {
  return {LayerKind::kBackground, &layers.background,   s.BackgroundFileName,
          &s.BackgroundScale,     &s.BackgroundFlipVer, &s.BackgroundFlipHor,
          &s.BackgroundOffsetX,   &s.BackgroundOffsetY, &s.BackgroundAngle};
}

std::optional<LayerSlot> ActiveSlot(int tab, const EffectViews& views, EffectLayers& layers,
                                    EffectSettings& settings) {
  switch (tab) {
    case kWashTab:
      return WashSlot(layers, settings, IsSecondActive(kWashTab, views, settings));
    case kSurfaceTab:
      return SurfaceSlot(layers, settings, IsSecondActive(kSurfaceTab, views, settings));
    case kBackgroundTab:
      return BackgroundSlot(layers, settings);
    default:
      return std::nullopt;
  }
}

LayerSlot ActiveSlotOf(LayerKind kind, const EffectViews& views, EffectLayers& layers,
                       EffectSettings& settings) {
  switch (kind) {
    case LayerKind::kWash:
      return WashSlot(layers, settings, IsSecondActive(kWashTab, views, settings));
    case LayerKind::kSurface:
      return SurfaceSlot(layers, settings, IsSecondActive(kSurfaceTab, views, settings));
    case LayerKind::kBackground:
      break;
  }
  return BackgroundSlot(layers, settings);
}

}  // namespace tarnwick
