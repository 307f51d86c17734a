#pragma once
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "settings/effect_settings.h"
#include "textures/thumbnail_picture.h"

namespace tarnwick {

// The filmstrip's pictures: what each look makes of its texture, kept as a bitmap
// beside the look's file, since each costs the decoding of a texture.

struct FilmCellSource {
  std::string_view name;      // without extension
  std::string cachePath;      // of the bitmap
  std::string textureFolder;  // where the looks' textures lie
};

// Reads a look into the settings; false if there is none.
using FilmLookLoader = std::function<bool(std::string_view name)>;

// The cell of a look: its bitmap as it stands, if that has a cell's size, else made
// anew, and kept. Nothing for a look, or a texture, that cannot be read; nothing is kept
// then. The name "none", in any capitals, has a crossed box and no bitmap.
//
// `load` reads into `settings` and changes `session`; both are put back, so that the
// strip can be filled at any time.
[[nodiscard]] std::optional<ThumbnailPicture> LoadOrMakeFilmCell(const FilmCellSource& source,
                                                                 EffectSettings& settings,
                                                                 SettingsSession& session,
                                                                 const FilmLookLoader& load);

}  // namespace tarnwick
