#pragma once
#include <vector>

#include "settings/effect_settings.h"
#include "textures/thumbnail_picture.h"

namespace tarnwick {

// A texture as relief under the surface's light, in small. Like the bitmaps of cells,
// its rows go from the bottom up, and so does the light's z.
struct CellLight {
  float x = 0;
  float y = 0;  // what a flat area gets
  float z = 0;
  float slope = 0;  // what a height difference of 1 counts
};

// `step`: the document's pixels for one of the cell's; more than 0.
[[nodiscard]] CellLight CellLightOf(const EffectSettings& settings, float step);

// The heights of a grey picture, one a pixel, bottom row first; `factor` for a grey
// of 1. The interior is smoothed.
[[nodiscard]] std::vector<float> CellHeights(const ThumbnailPicture& picture, bool invert,
                                             float factor);

// The brightness of each point in place of its height: 0..1 for most, not limited here.
// `heights` is rows of `width`.
void LightCell(const CellLight& light, int width, std::vector<float>& heights);

}  // namespace tarnwick
