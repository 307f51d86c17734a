#include "dialog/edits/setting_edits.h"

#include "engine/coverage.h"
#include "engine/layer_edit.h"
#include "engine/texture_offset.h"
#include "engine/wash_edge.h"
#include "host_interface/filter_record.h"

namespace tarnwick {
namespace {

LayerTones TonesOf(const EffectSettings& settings) {
  // One slider sets all three levels.
  const auto level = static_cast<float>(settings.BackgroundMidtone);
  return {level,
          level,
          level,
          ColorOfWord(settings.BackgroundHighlightColor),
          ColorOfWord(settings.BackgroundMidtoneColor),
          ColorOfWord(settings.BackgroundShadowColor)};
}

}  // namespace

LayerKind KindOfTab(int tab) {
  if (tab == kWashTab) return LayerKind::kWash;
  return tab == kSurfaceTab ? LayerKind::kSurface : LayerKind::kBackground;
}

int TabOfKind(LayerKind kind) {
  if (kind == LayerKind::kWash) return kWashTab;
  return kind == LayerKind::kSurface ? kSurfaceTab : kBackgroundTab;
}

std::int32_t SettingEdits::Value(int tab, const ControlRow& row) const {
  if (row.field.get == nullptr) return 0;
  return row.field.get(*g_.gParams, IsSecondActive(tab, views_, *g_.gParams));
}

void SettingEdits::Set(int tab, const ControlRow& row, std::int32_t value) {
  Store(tab, row, value);
  if (IsFinishedLater(row)) {
    Finish(tab, row);
  } else if (row.isLinked && preview_ != nullptr) {
    preview_->PropagateLinks(KindOfTab(tab));
  }
}

void SettingEdits::Store(int tab, const ControlRow& row, std::int32_t value) {
  const std::optional<LayerSlot> slot = ActiveSlot(tab, views_, g_.layers, *g_.gParams);
  if (!slot) return;
  const bool second = IsSecondActive(tab, views_, *g_.gParams);
  const bool isTurn = row.kind == RowKind::kTurn;
  if (row.field.set != nullptr && !isTurn) row.field.set(*g_.gParams, second, value);
  CallSetter(row, *slot->layer, value);
  if (isTurn) row.field.set(*g_.gParams, second, slot->layer->angle);
  if (row.changesSurface && preview_ != nullptr) preview_->SurfaceChanged();
  if (row.makesCustom) {
    std::string& name =
        tab == kSurfaceTab ? g_.session.SurfaceColorCategory : g_.session.BackgroundColorCategory;
    name = kCustomCategory;
  }
}

bool SettingEdits::IsFinishedLater(const ControlRow& row) {
  return row.setter == LayerSetter::kScale || row.setter == LayerSetter::kCoverage ||
         row.setter == LayerSetter::kCoverageScale;
}

// Odd, and kept: the second wash, too, gets the patches of the first one.
void SettingEdits::FinishStored(int tab, const ControlRow& row) {
  if (row.setter == LayerSetter::kCoverageScale) {
    const std::optional<LayerSlot> slot = ActiveSlot(tab, views_, g_.layers, *g_.gParams);
    if (slot) SetCoverageScale(*slot->layer, g_.gParams->WashCoverageScale1);
  } else if (IsFinishedLater(row)) {
    Finish(tab, row);
  }
}

void SettingEdits::Finish(int tab, const ControlRow& row) {
  const std::optional<LayerSlot> slot = ActiveSlot(tab, views_, g_.layers, *g_.gParams);
  if (!slot) return;
  const std::int32_t value = Value(tab, row);
  if (row.setter == LayerSetter::kScale) {
    SetScale(*slot->layer, g_.render, value);
    // A smaller texture may not reach as far: what is seen is what will be made.
    *slot->offsetX = slot->layer->offsetX;
    *slot->offsetY = slot->layer->offsetY;
  } else if (row.setter == LayerSetter::kCoverage) {
    SetCoverage(*slot->layer, g_.render, value);
  } else {
    SetCoverageScale(*slot->layer, value);
  }
  if (row.isLinked && preview_ != nullptr) preview_->PropagateLinks(KindOfTab(tab));
}

void SettingEdits::CallSetter(const ControlRow& row, EffectLayer& layer, std::int32_t value) {
  RenderState& state = g_.render;
  const bool isOn = value != 0;
  switch (row.setter) {
    case LayerSetter::kNone:
    case LayerSetter::kScale:
    case LayerSetter::kCoverage:
    case LayerSetter::kCoverageScale:
      break;
    case LayerSetter::kIntensity:
      SetIntensity(layer, value);
      break;
    case LayerSetter::kSeed:
      SetSeed(layer, value);
      break;
    case LayerSetter::kInside:
      SetInside(layer, value);
      break;
    case LayerSetter::kEdgeDistance:
      SetEdgeDistance(layer, value);
      break;
    case LayerSetter::kEdgeSoftness:
      SetEdgeSoftness(layer, value);
      break;
    case LayerSetter::kMirror:
      if ((layer.flipVertical != 0) != isOn) ToggleFlipVertical(layer, state);
      break;
    case LayerSetter::kUpsideDown:
      if ((layer.flipHorizontal != 0) != isOn) ToggleFlipHorizontal(layer, state);
      break;
    case LayerSetter::kInvert:
      if ((layer.invert != 0) != isOn) ToggleInvert(layer, state);
      break;
    case LayerSetter::kTurnLeft:
      RotateLayerCounterClockwise(layer, state);
      break;
    case LayerSetter::kTurnRight:
      RotateLayerClockwise(layer, state);
      break;
    case LayerSetter::kTones:
      SetTones(layer, TonesOf(*g_.gParams));
      break;
    case LayerSetter::kWashType:
      layer.washType = static_cast<std::uint8_t>(value);
      break;
    case LayerSetter::kWashColor:
      layer.stainColor = ColorOfWord(static_cast<std::uint32_t>(value));
      break;
    case LayerSetter::kSurfaceType:
      layer.surfaceType = static_cast<std::uint8_t>(value);
      break;
    case LayerSetter::kDepth:
      layer.surfaceDepth = value;
      break;
    case LayerSetter::kPerspective:
      layer.perspective = static_cast<std::uint8_t>(value);
      break;
    case LayerSetter::kEnhanced:
      layer.toneDirty = true;
      break;
  }
}

void SettingEdits::SetLight(float alpha, float beta) {
  g_.gParams->SurfaceLightAlpha = alpha;
  g_.gParams->SurfaceLightBeta = beta;
  if (preview_ != nullptr) preview_->SurfaceChanged();
}

void SettingEdits::MoveOffset(int tab, int dx, int dy) {
  const std::optional<LayerSlot> slot = ActiveSlot(tab, views_, g_.layers, *g_.gParams);
  if (!slot) return;
  tarnwick::MoveOffset(*slot->layer, g_.render, dx, dy);
  *slot->offsetX = slot->layer->offsetX;
  *slot->offsetY = slot->layer->offsetY;
  if (preview_ != nullptr) preview_->PropagateLinks(slot->kind);
}

bool SettingEdits::CanMove(int tab) const {
  const std::optional<LayerSlot> slot = ActiveSlot(tab, views_, g_.layers, *g_.gParams);
  return slot && GetOffset(*slot->layer, g_.render).canMove;
}

TextureMatches SettingEdits::Update() {
  return UpdateTextureMatches(views_, *g_.gParams, g_.session);
}

PageFacts SettingEdits::Facts(int tab, const TextureMatches& matches) const {
  const host::FilterRecord& record = *g_.gFilterRecord;
  const DocumentFacts document{record.planes, record.imageMode == host::plugInModeCMYKColor};
  return FactsOf(tab, views_, *g_.gParams, matches, document, CanMove(tab));
}

}  // namespace tarnwick
