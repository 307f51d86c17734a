#include "engine/working_texture.h"

#include <algorithm>
#include <cstring>

#include "imaging/orientation.h"
#include "imaging/resample.h"
#include "imaging/smooth_relief.h"

namespace tarnwick {
namespace {

// The first column or row of the window on the texture, and how many follow.
struct CropAxis {
  int first;
  int count;
};

CropAxis CropAlong(int origin, float viewScale, int offset, int renderSize, int textureSize) {
  const auto wanted = static_cast<int>(
      std::min(static_cast<float>(renderSize) * viewScale, static_cast<float>(textureSize)));
  const auto first =
      static_cast<int>(static_cast<float>(origin) * viewScale + static_cast<float>(offset));
  // An offset is negative only where the texture is smaller than the picture.
  const int start = std::clamp(first, 0, textureSize);
  return {start, std::min(wanted, textureSize - start)};
}

bool TextureFitsWindow(const RasterImage& texture, const RenderState& state) {
  return static_cast<int>(static_cast<float>(texture.Width()) / state.viewScale) <=
             state.renderWidth &&
         static_cast<int>(static_cast<float>(texture.Height()) / state.viewScale) <=
             state.renderHeight;
}

// The part of the texture that the window shows, plane 0; null if nothing is.
ImagePtr CropToWindow(const EffectLayer& layer, RenderState& state) {
  const RasterImage& texture = *layer.texture;
  const CropAxis xs = CropAlong(state.viewOriginX, state.viewScale, layer.offsetX,
                                state.renderWidth, texture.Width());
  const CropAxis ys = CropAlong(state.viewOriginY, state.viewScale, layer.offsetY,
                                state.renderHeight, texture.Height());
  const std::uint8_t* const in = texture.PeekInterior();
  if (in == nullptr || xs.count <= 0 || ys.count <= 0) return nullptr;
  ImagePtr crop = MakeGrayImage({0, 0, ys.count, xs.count}, 0);
  std::uint8_t* const out = crop->Interior();
  if (out == nullptr) return nullptr;
  for (int y = 0; y < ys.count; ++y) {
    std::memcpy(out + y * crop->RowBytes(), in + (ys.first + y) * texture.RowBytes() + xs.first,
                static_cast<std::size_t>(xs.count));
    state.progress.ReportRow(y, ys.count);
  }
  return crop;
}

void PrepareForPreview(EffectLayer& layer, RenderState& state) {
  Progress& progress = state.progress;
  const double third = progress.budget / 3;
  layer.working = nullptr;
  const ProgressShare share(progress, progress.base, third);
  const ImagePtr shown =
      TextureFitsWindow(*layer.texture, state) ? layer.texture : CropToWindow(layer, state);
  progress.Report(progress.base + third);
  if (shown != nullptr && state.viewScale != 0) {
    const double factor = 1.0 / static_cast<double>(state.viewScale);
    if (!ResampleImage(layer.working, shown.get(), factor, 1, state.pool, state.isa)) {
      layer.working = nullptr;
    }
  }
  progress.Report(progress.base + 2 * third);
  if (layer.kind == LayerKind::kSurface && layer.working != nullptr) {
    const ProgressShare nested(progress, progress.base + 2 * third, third);
    SmoothRelief(*layer.working, &progress, state.isa);
  }
}

// Cuts away what lies above and to the left of the offset. An offset beyond the
// texture, which a turn can leave behind, cuts all of it away: the image is then
// without pixels, and nothing of the effect shows.
void CutAtOffset(EffectLayer& layer) {
  if (layer.offsetY <= 0 && layer.offsetX < 1) return;
  const RasterImage& texture = *layer.texture;
  Rect bounds = texture.bounds;
  bounds.top = std::clamp(layer.offsetY, bounds.top, bounds.bottom);
  bounds.left = std::clamp(layer.offsetX, bounds.left, bounds.right);
  ImagePtr cut = MakeGrayImage(bounds, 0);
  const Rect part{bounds.top - texture.bounds.top, bounds.left - texture.bounds.left,
                  texture.Height(), texture.Width()};
  (void)CopyRegion(*cut, texture, part);
  layer.texture = cut;
  layer.working = std::move(cut);
}

void PrepareForFinal(EffectLayer& layer, RenderState& state) {
  layer.working = layer.texture;
  if (layer.kind == LayerKind::kSurface) {
    const ProgressShare share(state.progress, state.progress.base, 10);
    SmoothRelief(*layer.working, &state.progress, state.isa);
  }
  CutAtOffset(layer);
}

}  // namespace

void PrepareWorkingTexture(EffectLayer& layer, RenderState& state) {
  if (!layer.textureDirty || layer.texture == nullptr) return;
  if (state.previewMode) {
    PrepareForPreview(layer, state);
  } else {
    PrepareForFinal(layer, state);
  }
  layer.textureDirty = false;
  layer.toneDirty = true;
  state.surfaceStale = true;
}

}  // namespace tarnwick
