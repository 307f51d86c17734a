#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "dialog/models/effect_views.h"
#include "engine/effect_layer.h"
#include "engine/render_state.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// What is due after a step with the texture drawer, in this order.
struct TextureWork {
  bool closeDrawer = false;
  bool textureChosen = false;    // the page prints the name and offers to link
  bool settingsChanged = false;  // command 1008
  bool clearProgress = false;
};

// The texture of one effect while the texture drawer is open for it. A texture that is
// tried goes into the settings and the layer at once; Cancel brings the first one back.
//
// Owns none; all outlive it.
class TextureTarget {
 public:
  TextureTarget(EffectSettings& settings, EffectLayers& layers, RenderState& render,
                const EffectViews& views)
      : settings_(settings), layers_(layers), render_(render), views_(views) {}

  // For the effect that the page of `tab` edits, which is not Basic. The file name of
  // its texture as it is now.
  std::string Open(int tab);
  [[nodiscard]] bool IsOpen() const { return tab_ != kBasicTab; }
  [[nodiscard]] LayerKind Kind() const { return kind_; }

  // A look at the texture of this file name. "Solid.twk" is never seen inverted: its
  // layer is not, whatever the settings say.
  TextureWork Try(std::string_view name);
  TextureWork Accept(std::string_view name);
  TextureWork Cancel();

 private:
  void Load(std::string_view name, std::uint8_t invert);

  EffectSettings& settings_;
  EffectLayers& layers_;
  RenderState& render_;
  const EffectViews& views_;
  int tab_ = kBasicTab;
  LayerKind kind_ = LayerKind::kWash;
  std::string firstName_;
  std::uint8_t firstInvert_ = 0;
};

}  // namespace tarnwick
