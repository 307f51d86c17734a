#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "dialog/models/effect_views.h"
#include "dialog/preview/live_preview.h"
#include "filter/filter_globals.h"
#include "textures/thumbnail_picture.h"

namespace tarnwick {

// What a picker's choice applies to, by the numbers it goes by.
enum class CellTarget : std::uint8_t { kWash = 0, kBackground = 1, kSurface = 2 };

// Three tones as colour words, red in the low byte.
struct CellTones {
  std::uint32_t highlight = 0;
  std::uint32_t midtone = 0;
  std::uint32_t shadow = 0;
};

// Small pictures of an effect on the document, one for each cell of a picker. The
// thumbnail of a texture stands for the texture, which is never decoded for it.
//
// Reads   the settings and the layers of `g` as they are at each call: the colours,
//         types, levels and invert flags that a cell shares with the pane.
// Made    once for all cells: the picture of the document (MakeBackdrop) and what an
//         erosion uncovers (MakeBackgroundStage).
// Errors  Without a document, or without memory, a picture stays as it was given.
//         Nothing throws.
// Threads the host's one.
class CellPreview {
 public:
  // Owns neither. The thumbnails lie in `textureFolder`, without a separator at its end.
  CellPreview(FilterGlobals& g, const LivePreview& preview, std::string textureFolder);

  // The size of all pictures that are passed in; kDrawerThumbnail at first. Drops what
  // has been made for another.
  void SetSize(ThumbnailSize size);

  // Height for a grey of 1, before the light: a surface's depth / 150. 0 at first.
  void SetReliefFactor(float factor) { reliefFactor_ = factor; }

  // Takes the document as it is without any effect. Due once before the first preview.
  void MakeBackdrop();

  // What lies under a wash, from the background that is set by now; due whenever a
  // picker opens for a wash, and freed when it closes.
  void MakeBackgroundStage();
  void FreeBackgroundStage() { stage_.reset(); }

  // Turns the grey thumbnail into the effect of its texture. A picture of another size
  // than the one set stays grey, but for a background. Returns how many of the
  // document's pixels one of the picture stands for.
  float Preview(CellTarget target, const EffectViews& views, ThumbnailPicture& picture);

  // The grey thumbnail `source` as background or surface in those tones, not in the
  // present ones. A wash has none, and stays grey.
  [[nodiscard]] ThumbnailPicture PreviewColors(CellTarget target, const EffectViews& views,
                                               const ThumbnailPicture& source,
                                               const CellTones& tones);

 private:
  void MakeOverlay();
  // The document is there, and `picture` as large as what has been taken of it.
  [[nodiscard]] bool HasOverlay(const ThumbnailPicture& picture);
  // What shows through, three bytes a pixel; null if there is nothing.
  [[nodiscard]] const std::uint8_t* Under() const;
  void PreviewWash(const EffectViews& views, ThumbnailPicture& picture);
  void PreviewSurface(const EffectSettings& settings, const EffectViews& views,
                      ThumbnailPicture& picture);

  FilterGlobals& g_;
  const LivePreview& preview_;
  std::string textureFolder_;
  ThumbnailSize size_ = kDrawerThumbnail;
  float reliefFactor_ = 0;
  // Of the document: red, green, blue, alpha times selection.
  std::vector<std::uint8_t> overlay_;
  std::optional<ThumbnailPicture> backdrop_;
  std::optional<ThumbnailPicture> stage_;
};

}  // namespace tarnwick
