#pragma once
#include <cstdint>
#include <optional>
#include <string>

#include "dialog/models/effect_views.h"
#include "engine/effect_layer.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// A layer with what the settings hold of it: all that a link carries over, and names.
struct LayerSlot {
  LayerKind kind{};
  EffectLayer* layer = nullptr;
  char* fileName = nullptr;  // kTextureNameSize bytes
  std::int32_t* scale = nullptr;
  std::uint8_t* mirror = nullptr;      // left and right; the layer's flipVertical
  std::uint8_t* upsideDown = nullptr;  // the layer's flipHorizontal
  std::int32_t* offsetX = nullptr;
  std::int32_t* offsetY = nullptr;
  std::int32_t* angle = nullptr;

  // The texture's file name.
  [[nodiscard]] std::string Name() const;
};

[[nodiscard]] LayerSlot WashSlot(EffectLayers& layers, EffectSettings& settings, bool second);
[[nodiscard]] LayerSlot SurfaceSlot(EffectLayers& layers, EffectSettings& settings, bool second);
[[nodiscard]] LayerSlot BackgroundSlot(EffectLayers& layers, EffectSettings& settings);

// The one that the page of `tab` edits; none on Basic.
[[nodiscard]] std::optional<LayerSlot> ActiveSlot(int tab, const EffectViews& views,
                                                  EffectLayers& layers, EffectSettings& settings);
// The one that the page of the kind edits.
[[nodiscard]] LayerSlot ActiveSlotOf(LayerKind kind, const EffectViews& views, EffectLayers& layers,
                                     EffectSettings& settings);

}  // namespace tarnwick
