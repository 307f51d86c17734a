#include <utility>

#include "base/truncate.h"
#include "dialog/preview/live_preview.h"
#include "engine/texture_offset.h"

namespace tarnwick {
namespace {

// A layer, and where the settings keep its offset.
struct OffsetHolder {
  EffectLayer* layer = nullptr;
  std::int32_t* x = nullptr;
  std::int32_t* y = nullptr;
};

OffsetHolder ActiveHolder(FilterGlobals& g, EffectPage page, ViewMode view) {
  EffectLayers& layers = g.layers;
  EffectSettings& s = *g.gParams;
  switch (page) {
    case EffectPage::kBasic:
      break;
    case EffectPage::kWash:
      if (view == ViewMode::kWashTwo && s.SecondWashExists != 0) {
        return {&layers.washes[1], &s.WashOffsetX2, &s.WashOffsetY2};
      }
      return {layers.washes.data(), &s.WashOffsetX1, &s.WashOffsetY1};
    case EffectPage::kSurface:
      if (view == ViewMode::kSurfaceTwo && s.SecondSurfaceExists != 0) {
        return {&layers.surfaces[1], &s.SurfaceOffsetX2, &s.SurfaceOffsetY2};
      }
      return {layers.surfaces.data(), &s.SurfaceOffsetX1, &s.SurfaceOffsetY1};
    case EffectPage::kBackground:
      return {&layers.background, &s.BackgroundOffsetX, &s.BackgroundOffsetY};
  }
  return {};
}

int InDocument(int shown, float scale) {
  return TruncateToInt(static_cast<double>(static_cast<float>(shown) * scale));
}

}  // namespace

bool LivePreview::MoveActiveOffset(EffectPage page, ViewMode view, int dx, int dy) {
  if (view == ViewMode::kOriginal) return false;
  const OffsetHolder holder = ActiveHolder(g_, page, view);
  if (holder.layer == nullptr) return false;
  const float scale = g_.render.viewScale;
  MoveOffset(*holder.layer, g_.render, InDocument(dx, scale), InDocument(dy, scale));
  *holder.x = holder.layer->offsetX;
  *holder.y = holder.layer->offsetY;
  PropagateLinks(holder.layer->kind);
  return true;
}

void LivePreview::SetLinkPropagation(std::function<void(LayerKind)> propagate) {
  propagate_ = std::move(propagate);
}

void LivePreview::PropagateLinks(LayerKind kind) {
  if (propagate_) propagate_(kind);
}

}  // namespace tarnwick
