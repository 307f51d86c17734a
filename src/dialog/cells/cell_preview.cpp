#include "dialog/cells/cell_preview.h"

#include <algorithm>
#include <new>
#include <utility>

#include "dialog/cells/cell_blend.h"
#include "dialog/cells/cell_places.h"
#include "dialog/cells/cell_relief.h"
#include "dialog/cells/tone_cell.h"
#include "dialog/cells/wash_cell.h"
#include "dialog/models/page_enable.h"
#include "engine/surface_row.h"
#include "textures/texture_thumbnail.h"

namespace tarnwick {
namespace {

constexpr int kGridSquare = 8;
constexpr int kPixelBytes = 4;

// Window procedures call all of this: what lacks memory is left out.
template <typename Work>
void WithinMemory(const Work& work) {
  try {
    work();
  } catch (const std::bad_alloc&) {
    return;
  }
}

bool HasSize(const ThumbnailPicture& picture, ThumbnailSize size) {
  return picture.width == size.width && picture.height == size.height;
}

// Three bytes for each of `pixels`, over a grid of squares.
ThumbnailPicture OverGrid(const std::vector<std::uint8_t>& pixels, ThumbnailSize size) {
  ThumbnailPicture picture(size.width, size.height);
  const std::uint8_t* pixel = pixels.data();
  std::uint8_t* to = picture.samples.data();
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x, pixel += kPixelBytes, to += 3) {
      const bool isWhite = ((x / kGridSquare + y / kGridSquare) & 1) != 0;
      const auto grid = static_cast<std::uint8_t>(isWhite ? 255 : 204);
      const std::uint8_t under[3] = {grid, grid, grid};
      PutOver({static_cast<float>(pixel[0]), static_cast<float>(pixel[1]),
               static_cast<float>(pixel[2])},
              pixel[3], under, to);
    }
  }
  return picture;
}

SurfaceLook LookOf(const EffectSettings& settings, bool second) {
  SurfaceLook look;
  look.shade = ShadeLookOf(settings, second ? settings.SurfaceType2 : settings.SurfaceType1);
  look.intensity = static_cast<float>(settings.SurfaceIntensity) / 100.0F;
  look.entire = settings.SurfaceEntire != 0;
  return look;
}

}  // namespace

CellPreview::CellPreview(FilterGlobals& g, const LivePreview& preview, std::string textureFolder)
    : g_(g), preview_(preview), textureFolder_(std::move(textureFolder)) {}

void CellPreview::SetSize(ThumbnailSize size) {
  size_ = {std::max(size.width, 1), std::max(size.height, 1)};
  overlay_.clear();
  backdrop_.reset();
  stage_.reset();
}

void CellPreview::MakeOverlay() {
  overlay_.clear();
  const PaneSize document = preview_.Document();
  if (document.width < 1 || document.height < 1) return;
  const float step = CellStep(document.width);
  DocumentSamples samples =
      preview_.SampleDocument(CentredPlaces(document.width, size_.width, step),
                              CentredPlaces(document.height, size_.height, step));
  // What is not selected stays as it is: it is seen through the effect.
  for (std::size_t i = 0; i < samples.selection.size() && i * kPixelBytes < samples.pixels.size();
       ++i) {
    std::uint8_t& alpha = samples.pixels[i * kPixelBytes + 3];
    alpha = static_cast<std::uint8_t>(samples.selection[i] * alpha / 255);
  }
  overlay_ = std::move(samples.pixels);
}

void CellPreview::MakeBackdrop() {
  backdrop_.reset();
  WithinMemory([&] {
    MakeOverlay();
    const PaneSize document = preview_.Document();
    if (document.width < 1 || document.height < 1) return;
    const DocumentSamples samples = preview_.SampleDocument(
        BackdropPlaces(document.width, size_.width), BackdropPlaces(document.height, size_.height));
    if (!samples.pixels.empty()) backdrop_ = OverGrid(samples.pixels, size_);
  });
}

void CellPreview::MakeBackgroundStage() {
  stage_.reset();
  WithinMemory([&] {
    const EffectSettings& settings = *g_.gParams;
    if (settings.BackgroundUse != 0 && settings.BackgroundFileName[0] != '\0') {
      TextureRecord record;
      record.fileName = settings.BackgroundFileName;
      stage_ = LoadOrMakeThumbnail(textureFolder_, record, size_, true);
      if (stage_) ColorToneCell(ToneLookOf(g_.layers.background, settings), *stage_);
    }
    if (!stage_) stage_ = backdrop_;
  });
}

const std::uint8_t* CellPreview::Under() const {
  if (stage_) return stage_->samples.data();
  return backdrop_ ? backdrop_->samples.data() : nullptr;
}

bool CellPreview::HasOverlay(const ThumbnailPicture& picture) {
  if (!HasSize(picture, size_)) return false;
  if (overlay_.empty()) MakeOverlay();
  return !overlay_.empty();
}

float CellPreview::Preview(CellTarget target, const EffectViews& views, ThumbnailPicture& picture) {
  WithinMemory([&] {
    switch (target) {
      case CellTarget::kWash:
        return PreviewWash(views, picture);
      case CellTarget::kBackground:
        return ColorToneCell(ToneLookOf(g_.layers.background, *g_.gParams), picture);
      case CellTarget::kSurface:
        return PreviewSurface(*g_.gParams, views, picture);
    }
  });
  return CellStep(preview_.Document().width);
}

ThumbnailPicture CellPreview::PreviewColors(CellTarget target, const EffectViews& views,
                                            const ThumbnailPicture& source,
                                            const CellTones& tones) {
  ThumbnailPicture picture;
  WithinMemory([&] {
    picture = source;
    if (target == CellTarget::kBackground) {
      ToneCellLook look = ToneLookOf(g_.layers.background, *g_.gParams);
      look.highlight = ColorOfWord(tones.highlight);
      look.midtone = ColorOfWord(tones.midtone);
      look.shadow = ColorOfWord(tones.shadow);
      ColorToneCell(look, picture);
    } else if (target == CellTarget::kSurface) {
      EffectSettings toned = *g_.gParams;
      toned.SurfaceHighlightColor = tones.highlight;
      toned.SurfaceMidtoneColor = tones.midtone;
      toned.SurfaceShadowColor = tones.shadow;
      PreviewSurface(toned, views, picture);
    }
  });
  return picture;
}

void CellPreview::PreviewWash(const EffectViews& views, ThumbnailPicture& picture) {
  if (!HasOverlay(picture)) return;
  const EffectSettings& settings = *g_.gParams;
  const bool second = IsSecondActive(kWashTab, views, settings);
  const WashCellLook look{
      second ? settings.WashType2 : settings.WashType1,
      ColorOfWord(second ? settings.WashStainColor2 : settings.WashStainColor1)};
  const std::uint8_t* const under = Under();
  for (std::size_t i = 0; i * kPixelBytes < overlay_.size(); ++i) {
    std::uint8_t* const out = &picture.samples[i * 3];
    WashCellPixel(look, *out, &overlay_[i * kPixelBytes],
                  under != nullptr ? under + i * 3 : nullptr, out);
  }
}

void CellPreview::PreviewSurface(const EffectSettings& settings, const EffectViews& views,
                                 ThumbnailPicture& picture) {
  if (!HasOverlay(picture)) return;
  const bool second = IsSecondActive(kSurfaceTab, views, settings);
  std::vector<float> light =
      CellHeights(picture, g_.layers.surfaces[second ? 1 : 0].invert != 0, reliefFactor_);
  LightCell(CellLightOf(settings, CellStep(preview_.Document().width)), size_.width, light);
  const SurfaceLook look = LookOf(settings, second);
  const auto surfaceRow = g_.render.isa == Isa::kAvx2 ? SurfaceRowAvx2 : SurfaceRowPlain;
  const auto width = static_cast<std::size_t>(size_.width);
  const auto height = static_cast<std::size_t>(size_.height);
  std::vector<std::uint8_t> row(width * kPixelBytes);
  const std::uint8_t* const under = Under();
  for (std::size_t y = 0; y < height; ++y) {
    surfaceRow({&light[(height - 1 - y) * width], &overlay_[y * width * kPixelBytes], row.data(),
                nullptr, size_.width},
               look);
    for (std::size_t x = 0; x < width; ++x) {
      const std::uint8_t* const pixel = &row[x * kPixelBytes];
      const std::size_t at = (y * width + x) * 3;
      PutOver({static_cast<float>(pixel[0]), static_cast<float>(pixel[1]),
               static_cast<float>(pixel[2])},
              pixel[3], under != nullptr ? under + at : nullptr, &picture.samples[at]);
    }
  }
}

}  // namespace tarnwick
