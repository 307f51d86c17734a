#include "textures/texture_load.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <utility>

#include "engine/texture_offset.h"
#include "engine/working_texture.h"
#include "imaging/fill.h"
#include "imaging/orientation.h"
#include "imaging/resample.h"
#include "textures/texture_cache.h"
#include "textures/wash_file.h"

namespace tarnwick {
namespace {

constexpr std::int32_t kMissingSize = 1000;

void Alert(const RenderState& state, const char* before, const std::string& path,
           const char* after) {
  if (state.showTextureAlerts && state.alerts != nullptr) {
    state.alerts->TextureAlert(before + path + after);
  }
}

ImagePtr WhiteImage(const RenderState& state, const Rect& bounds) {
  ImagePtr blank = MakeGrayImage(bounds, 0);
  return FillImage(*blank, kWhiteFill, state.colorServices) ? blank : nullptr;
}

// The engine reads plane 0 alone; a grey copy of it spares the others' work.
ImagePtr FirstPlane(ImagePtr image) {
  if (image->planeCount == 1 || image->PeekPixels() == nullptr) return image;
  ImagePtr gray = MakeGrayImage(image->bounds, 0);
  if (gray->Pixels() == nullptr) return image;
  std::memcpy(gray->Pixels(), image->PeekPixels(), gray->PlaneBytes());
  return gray;
}

void SetMissingSize(EffectLayer& layer) {
  layer.textureWidth = kMissingSize;
  layer.textureHeight = kMissingSize;
}

// The file's samples, or the white stand-in; null without memory. `isWhole` tells
// the one from the other.
ImagePtr ReadOrStandIn(EffectLayer& layer, const RenderState& state, bool& isWhole) {
  AWashFile file(state.alerts == nullptr
                     ? AWashFile::Complain{}
                     : [&state](const std::string& text) { state.alerts->TextureFault(text); });
  if (!file.Open(layer.fileName)) {
    Alert(state, "The file ", layer.fileName, " is not presented or wrong");
    layer.texture = nullptr;
    SetMissingSize(layer);
    return WhiteImage(state, {0, 0, kMissingSize, kMissingSize});
  }
  layer.texture = nullptr;
  layer.textureWidth = static_cast<std::int32_t>(file.GetWidth());
  layer.textureHeight = static_cast<std::int32_t>(file.GetHeight());
  ImagePtr image;
  const bool whole = file.ReadImage(image);
  const bool empty = layer.textureWidth == 0 || layer.textureHeight == 0;
  isWhole = whole && !empty && image != nullptr;
  if (isWhole) return FirstPlane(std::move(image));
  Alert(state, "The file ", layer.fileName, " cannot to be rasterized");
  // Nothing can be scaled from a picture without a size.
  if (empty) SetMissingSize(layer);
  // Width and height change places here, and looks depend on it: the stand-in
  // of a damaged wide texture leaves a part of the picture alone.
  return WhiteImage(state, {0, 0, layer.textureWidth, layer.textureHeight});
}

ImagePtr CopyOf(const RasterImage& image) {
  auto copy = std::make_shared<RasterImage>(image.colorMode, image.bounds, image.planeCount,
                                            image.sampleBits, image.margin, image.allocHint);
  return CopyPixels(*copy, image) ? copy : nullptr;
}

// Reads and scales; false when not even the stand-in could be made.
bool ReadScaled(EffectLayer& layer, const RenderState& state, bool& isWhole) {
  layer.texture = ReadOrStandIn(layer, state, isWhole);
  if (layer.texture == nullptr) return false;
  layer.effectiveScale =
      EffectiveScale(state.documentWidth, state.documentHeight, layer.textureWidth,
                     layer.textureHeight, layer.scaleSetting);
  ImagePtr scaled;
  if (ResampleImage(scaled, layer.texture.get(), layer.effectiveScale, 1, state.pool, state.isa)) {
    layer.texture = std::move(scaled);
  } else {
    isWhole = false;  // Not as it should be, for want of memory.
  }
  return true;
}

// Inverting and flipping happen in place, and so does the final render's
// smoothing; a turn makes an image of its own.
bool LeavesTextureAlone(const EffectLayer& layer, const RenderState& state) {
  return state.previewMode && layer.invert == 0 && layer.flipVertical == 0 &&
         layer.flipHorizontal == 0;
}

// ReadScaled by way of the cache. Stand-ins are not kept: each use alerts.
bool TakeScaled(EffectLayer& layer, const RenderState& state) {
  bool isWhole = false;
  if (state.textureCache == nullptr) return ReadScaled(layer, state, isWhole);
  const TextureCache::Key key{layer.fileName, state.documentWidth, state.documentHeight,
                              layer.scaleSetting};
  const TextureCache::Entry* kept = state.textureCache->Find(key);
  if (kept == nullptr) {
    if (!ReadScaled(layer, state, isWhole)) return false;
    if (!isWhole) return true;
    state.textureCache->Keep(key, {layer.texture, layer.textureWidth, layer.textureHeight});
  } else {
    layer.texture = kept->image;
    layer.textureWidth = kept->fileWidth;
    layer.textureHeight = kept->fileHeight;
    layer.effectiveScale =
        EffectiveScale(state.documentWidth, state.documentHeight, layer.textureWidth,
                       layer.textureHeight, layer.scaleSetting);
  }
  if (LeavesTextureAlone(layer, state)) return true;
  if (ImagePtr own = CopyOf(*layer.texture)) {
    layer.texture = std::move(own);
    return true;
  }
  return ReadScaled(layer, state, isWhole);
}

}  // namespace

double EffectiveScale(int documentWidth, int documentHeight, int textureWidth, int textureHeight,
                      double slider) {
  const double fit = std::max(static_cast<double>(documentHeight) / textureHeight,
                              static_cast<double>(documentWidth) / textureWidth);
  return (fit * 1.8 - fit) * slider / 200 + fit;
}

void FlipLayerTexture(EffectLayer& layer, int mode, ThreadPool* pool) {
  if (layer.texture == nullptr) return;
  RasterImage& texture = *layer.texture;
  RasterImage copy(texture.colorMode, texture.bounds, texture.planeCount, texture.sampleBits, 0,
                   texture.allocHint);
  if (!CopyPixels(copy, texture)) return;
  (void)(mode == 1 ? ReverseRows(texture, copy, pool) : MirrorRows(texture, copy, pool));
}

void OrientTexture(EffectLayer& layer, ThreadPool* pool) {
  if (layer.texture == nullptr) return;
  if (layer.invert != 0) (void)InvertImage(*layer.texture);
  if (layer.flipVertical != 0) FlipLayerTexture(layer, 2, pool);
  if (layer.flipHorizontal != 0) FlipLayerTexture(layer, 1, pool);
  if (layer.angle <= 0) return;
  // Four turns end where they began; a preset may hold any number of them.
  const int turns = ((layer.angle - 1) / 90 + 1) % 4;
  for (int i = 0; i < turns; ++i) {
    ImagePtr turned;
    if (!RotateClockwise(turned, layer.texture.get(), pool)) return;
    layer.texture = std::move(turned);
  }
}

bool LoadTexture(EffectLayer& layer, RenderState& state, const std::string& path) {
  layer.fileName = path;
  layer.texture = nullptr;
  layer.working = nullptr;
  if (!TakeScaled(layer, state)) return false;
  MoveOffset(layer, state, 0, 0);
  OrientTexture(layer, state.pool);
  layer.textureDirty = true;
  PrepareWorkingTexture(layer, state);
  return true;
}

}  // namespace tarnwick
