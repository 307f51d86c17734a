#pragma once
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "dialog/models/effect_views.h"
#include "engine/effect_layer.h"
#include "engine/render_state.h"
#include "presets/preset_kind.h"
#include "presets/preset_session.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// What the colour drawer colours, by the numbers it goes by.
enum class ColorTargetKind : std::uint8_t { kNone = 0, kBackground = 1, kSurface = 2 };

// What the drawer draws its cells from.
struct ColorOpening {
  ColorTargetKind target = ColorTargetKind::kNone;
  const EffectLayer* layer = nullptr;  // whose texture the cells show
  float depthFactor = 0;               // of a surface's relief
};

// What is due after a step; stale stages are marked already.
struct ColorWork {
  bool settingsChanged = false;  // command 1008
  bool showPage = false;         // the page shows the record anew
  bool closeDrawer = false;
  bool clearProgress = false;
};

// The colours of one effect while the colour drawer is open for it. A surface's are
// tried in the record; a background's in its layer alone, and the record gets them
// only when they are accepted.
//
// All that it is given lives longer than it does.
class ColorTarget {
 public:
  // Reads a colour preset by its name into the session's colours; see PresetLibrary.
  using Load = std::function<bool(std::string_view name, PresetKind kind)>;

  ColorTarget(EffectSettings& settings, PresetSession& session, EffectLayers& layers,
              RenderState& render, Load load);

  // Each notes the colours as they are now. The surface that `views` tells is worked on.
  // Odd, and kept: its depth factor is made of the other surface's depth.
  ColorOpening OpenForSurface(const EffectViews& views);
  ColorOpening OpenForBackground();

  // A look at the preset of this name, or at "Reset Colors". A preset that cannot be
  // read shows the colours of the one before it. No name: nothing happens.
  ColorWork Try(std::string_view name);
  // Keeps what was tried last; `name` is shown for it. Without a name the one shown
  // before stays.
  ColorWork Accept(std::string_view name);
  // Back to the colours noted.
  ColorWork Cancel();

  [[nodiscard]] ColorTargetKind Target() const { return target_; }

 private:
  void MarkStale();

  EffectSettings& settings_;
  PresetSession& session_;
  EffectLayers& layers_;
  RenderState& render_;
  Load load_;
  ColorTargetKind target_ = ColorTargetKind::kNone;
  // Colour words.
  std::uint32_t savedHighlight_ = 0;
  std::uint32_t savedMidtone_ = 0;
  std::uint32_t savedShadow_ = 0;
};

}  // namespace tarnwick
