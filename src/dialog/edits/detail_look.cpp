#include "dialog/edits/detail_look.h"

#include <new>
#include <utility>

#include "dialog/edits/active_effect.h"
#include "dialog/edits/setting_edits.h"
#include "dialog/edits/texture_target.h"
#include "dialog/models/fit_picture.h"

namespace tarnwick {
namespace {

// Rows from the top, red first.
ThumbnailPicture PictureOf(const PanePicture& pane) {
  if (pane.bitmap.empty()) return {};
  ThumbnailPicture picture(pane.imageWidth, pane.imageHeight);
  const auto rowBytes = static_cast<std::size_t>(picture.width) * 3;
  std::uint8_t* to = picture.samples.data();
  for (auto y = static_cast<std::size_t>(picture.height); y > 0; --y) {
    const std::uint8_t* from = pane.bitmap.data() + (y - 1) * rowBytes;
    for (std::size_t x = 0; x < rowBytes; x += 3, to += 3) {
      to[0] = from[x + 2];
      to[1] = from[x + 1];
      to[2] = from[x];
    }
  }
  return picture;
}

// What a look changes, put back as it ends, whatever ends it.
class TextureBack {
 public:
  TextureBack(FilterGlobals& g, LivePreview& preview, const EffectViews& views, LayerKind kind)
      : g_(g),
        preview_(preview),
        views_(views),
        kind_(kind),
        settings_(*g.gParams),
        result_(*g.gResult),
        target_(*g.gParams, g.layers, g.render, views) {
    const EffectLayer& layer = *Slot().layer;
    offsetX_ = layer.offsetX;
    offsetY_ = layer.offsetY;
    (void)target_.Open(TabOfKind(kind));
  }
  ~TextureBack() {
    // A texture of another shape has kept the picture on itself.
    EffectLayer& layer = *Slot().layer;
    layer.offsetX = offsetX_;
    layer.offsetY = offsetY_;
    bool isStuck = false;
    try {
      (void)target_.Cancel();
    } catch (const std::bad_alloc&) {
      isStuck = true;
    }
    *g_.gParams = settings_;
    if (isStuck) {
      preview_.RemakeLayers({.washes = kind_ != LayerKind::kWash,
                             .surfaces = kind_ != LayerKind::kSurface,
                             .background = kind_ != LayerKind::kBackground});
    }
    EffectViews views = views_;
    preview_.Render(views.Current(), PreviewBar::kKept);
    *g_.gParams = settings_;
    *g_.gResult = result_;
  }
  TextureBack(const TextureBack&) = delete;
  TextureBack& operator=(const TextureBack&) = delete;

  void Try(std::string_view name) { (void)target_.Try(name); }

 private:
  [[nodiscard]] LayerSlot Slot() const {
    return ActiveSlotOf(kind_, views_, g_.layers, *g_.gParams);
  }

  FilterGlobals& g_;
  LivePreview& preview_;
  const EffectViews& views_;
  LayerKind kind_;
  const EffectSettings settings_;
  const std::int16_t result_;
  TextureTarget target_;
  std::int32_t offsetX_ = 0, offsetY_ = 0;
};

}  // namespace

ThumbnailPicture LookAtTexture(FilterGlobals& g, LivePreview& preview, const EffectViews& views,
                               LayerKind kind, std::string_view name, ThumbnailSize size) {
  TextureBack back(g, preview, views, kind);
  const LayerSlot slot = ActiveSlotOf(kind, views, g.layers, *g.gParams);
  if (name != slot.Name()) back.Try(name);
  EffectViews copy = views;
  const ViewMode view = copy.Current();
  preview.Render(view == ViewMode::kOriginal ? ViewMode::kComposite : view, PreviewBar::kKept);
  return CentreOf(PictureOf(preview.BuildPaneImage(preview.Zoom().proxy)), size);
}

}  // namespace tarnwick
