#include "dialog/models/film_cells.h"

#include <array>

#include "dialog/models/crossed_box.h"
#include "presets/color_list.h"
#include "settings/ascii_text.h"
#include "textures/palette_cell.h"
#include "textures/thumbnail_file.h"

namespace tarnwick {
namespace {

// The system's grey brush.
constexpr std::array<std::uint8_t, 3> kGrey = {128, 128, 128};

// Puts back what reading a preset changes.
class Kept {
 public:
  Kept(EffectSettings& settings, SettingsSession& session)
      : settings_(settings), session_(session), oldSettings_(settings), oldSession_(session) {}
  ~Kept() {
    settings_ = oldSettings_;
    session_ = std::move(oldSession_);
  }
  Kept(const Kept&) = delete;
  Kept& operator=(const Kept&) = delete;

 private:
  EffectSettings& settings_;
  SettingsSession& session_;
  EffectSettings oldSettings_;
  SettingsSession oldSession_;
};

}  // namespace

std::optional<ThumbnailPicture> LoadOrMakeFilmCell(const FilmCellSource& source,
                                                   EffectSettings& settings,
                                                   SettingsSession& session,
                                                   const FilmLookLoader& load) {
  if (EqualIgnoringCase(source.name, kNoPaletteName)) return CrossedBox(kFilmstripThumbnail, kGrey);
  std::optional<ThumbnailPicture> cell = ReadThumbnail(source.cachePath, kFilmstripThumbnail);
  if (cell) return cell;
  {
    const Kept kept(settings, session);
    if (load(source.name)) cell = MakePaletteCell(settings, source.textureFolder);
  }
  // Without the file it is made again next time; that is all.
  if (cell) (void)WriteThumbnail(source.cachePath, *cell);
  return cell;
}

}  // namespace tarnwick
