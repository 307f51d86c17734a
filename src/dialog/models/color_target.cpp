#include "dialog/models/color_target.h"

#include <utility>

#include "dialog/models/preset_lists.h"
#include "engine/layer_edit.h"
#include "presets/color_list.h"

namespace tarnwick {
namespace {

constexpr float kFullRelief = 150.0F;

std::uint32_t WordOfColor(const LayerColor& color) {
  return color[0] | std::uint32_t{color[1]} << 8 | std::uint32_t{color[2]} << 16;
}

bool IsReset(std::string_view name) {
  return name == kResetColorsName;
}

}  // namespace

ColorTarget::ColorTarget(EffectSettings& settings, PresetSession& session, EffectLayers& layers,
                         RenderState& render, Load load)
    : settings_(settings),
      session_(session),
      layers_(layers),
      render_(render),
      load_(std::move(load)) {}

ColorOpening ColorTarget::OpenForSurface(const EffectViews& views) {
  target_ = ColorTargetKind::kSurface;
  savedHighlight_ = settings_.SurfaceHighlightColor;
  savedMidtone_ = settings_.SurfaceMidtoneColor;
  savedShadow_ = settings_.SurfaceShadowColor;
  const bool isSecond =
      views.surfaceView == ViewMode::kSurfaceTwo && settings_.SecondSurfaceExists != 0;
  const std::int32_t depth = isSecond ? settings_.SurfaceDepth1 : settings_.SurfaceDepth2;
  return {target_, &layers_.surfaces[isSecond ? 1 : 0], static_cast<float>(depth) / kFullRelief};
}

ColorOpening ColorTarget::OpenForBackground() {
  target_ = ColorTargetKind::kBackground;
  const EffectLayer& layer = layers_.background;
  savedHighlight_ = WordOfColor(layer.highlightColor);
  savedMidtone_ = WordOfColor(layer.midtoneColor);
  savedShadow_ = WordOfColor(layer.shadowColor);
  return {target_, &layer, 0};
}

void ColorTarget::MarkStale() {
  if (target_ == ColorTargetKind::kSurface) {
    render_.surfaceStale = true;
  } else {
    layers_.background.toneDirty = true;
  }
}

ColorWork ColorTarget::Try(std::string_view name) {
  if (target_ == ColorTargetKind::kNone || name.empty()) return {};
  EffectLayer& background = layers_.background;
  if (target_ == ColorTargetKind::kSurface) {
    if (IsReset(name)) {
      ResetSurfaceColors(settings_);
    } else {
      (void)load_(name, PresetKind::kSurfaceColor);
      settings_.SurfaceShadowColor = session_.PresetShadowColor;
      settings_.SurfaceMidtoneColor = session_.PresetMidtoneColor;
      settings_.SurfaceHighlightColor = session_.PresetHighlightColor;
    }
  } else if (IsReset(name)) {
    ResetBackgroundLayerColors(background);
  } else {
    (void)load_(name, PresetKind::kBackgroundColor);
    background.shadowColor = ColorOfWord(session_.PresetShadowColor);
    background.midtoneColor = ColorOfWord(session_.PresetMidtoneColor);
    background.highlightColor = ColorOfWord(session_.PresetHighlightColor);
  }
  MarkStale();
  return {.settingsChanged = true};
}

ColorWork ColorTarget::Accept(std::string_view name) {
  const ColorTargetKind target = std::exchange(target_, ColorTargetKind::kNone);
  if (target == ColorTargetKind::kNone) return {};
  const bool isSurface = target == ColorTargetKind::kSurface;
  if (!isSurface) {
    settings_.BackgroundHighlightColor = WordOfColor(layers_.background.highlightColor);
    settings_.BackgroundMidtoneColor = WordOfColor(layers_.background.midtoneColor);
    settings_.BackgroundShadowColor = WordOfColor(layers_.background.shadowColor);
  }
  if (!name.empty()) {
    SettingsSession& session = session_.settingsSession;
    std::string& category =
        isSurface ? session.SurfaceColorCategory : session.BackgroundColorCategory;
    category = IsReset(name) ? kCustomCategory : PresetNameOf(name).substr(0, kMaxCategoryName);
  }
  return {.showPage = true, .closeDrawer = true, .clearProgress = true};
}

ColorWork ColorTarget::Cancel() {
  if (target_ == ColorTargetKind::kNone) return {};
  if (target_ == ColorTargetKind::kSurface) {
    settings_.SurfaceHighlightColor = savedHighlight_;
    settings_.SurfaceMidtoneColor = savedMidtone_;
    settings_.SurfaceShadowColor = savedShadow_;
  } else {
    EffectLayer& background = layers_.background;
    background.highlightColor = ColorOfWord(savedHighlight_);
    background.midtoneColor = ColorOfWord(savedMidtone_);
    background.shadowColor = ColorOfWord(savedShadow_);
  }
  MarkStale();
  target_ = ColorTargetKind::kNone;
  return {.settingsChanged = true, .closeDrawer = true};
}

}  // namespace tarnwick
