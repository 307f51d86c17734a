#pragma once
#include <optional>
#include <string>

#include "settings/effect_settings.h"
#include "textures/thumbnail_picture.h"

namespace tarnwick {

// The pictures of the filmstrip: what a back palette makes of its texture.

// Turns a grey thumbnail into the background's three colours, in place, then
// shifts hue and saturation as the background does.
//
// A tone whose weight is below 100 comes out black: the weights are divided by
// 100 as whole numbers. The picture of the strip is not the picture of the
// render, where weights have no effect.
void ColorPaletteCell(const EffectSettings& settings, ThumbnailPicture& picture);

// The cell of the palette that `settings` holds, from the background's texture
// in `textureFolder`. Nothing if that cannot be read.
[[nodiscard]] std::optional<ThumbnailPicture> MakePaletteCell(const EffectSettings& settings,
                                                              const std::string& textureFolder);

}  // namespace tarnwick
