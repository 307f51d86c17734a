#pragma once
#include <span>
#include <string>
#include <vector>

#include "age_options.h"
#include "console.h"
#include "data_folders.h"
#include "preset_library.h"
#include "settings_recipe.h"

namespace tarnwick {

// A texture that a look uses, as a page shows it.
struct LookTexture {
  std::string role;  // "Wash", "Second surface" ...
  std::string name;  // as pickers show it
  std::string set;   // empty if the table of sets does not know it
};

// One preset as a gallery shows it: what makes the look, and what it is found by.
struct GalleryLook {
  PresetKind kind = PresetKind::kBasic;
  std::string name;    // without folder and extension
  std::string folder;  // below the kind's own; may be empty
  std::string id;      // unique, of a-z, 0-9 and "-"
  // What `tarnwick age` has to be told; `composed` is what comes of it. A preset
  // that holds a part of the settings is shown by itself: see ShownBy.
  std::vector<AgeStep> steps;
  ComposedSettings composed;
  std::vector<LookTexture> textures;
  std::vector<std::string> effects;     // of its textures, in the order of filters
  std::vector<std::string> categories;  // of its colours
};

// The steps that go before a preset of this kind, so that its own share is what
// is seen: a surface without washes, a background where a wash eats a lot, colours
// at full strength.
[[nodiscard]] std::vector<AgeStep> ShownBy(PresetKind kind);

// The presets of these kinds, in the library's order. One that cannot be used
// is told as an error and left out; `failed` is then set.
[[nodiscard]] std::vector<GalleryLook> ListLooks(const DataFolders& folders,
                                                 std::span<const PresetKind> kinds,
                                                 Console& console, bool& failed);

// An id for each (kind, name) in turn, no two alike, whatever the names.
[[nodiscard]] std::vector<std::string> LookIds(std::span<const PresetEntry> entries);

// "Basic", "Washes": what visitors of a page read for a kind.
[[nodiscard]] std::string KindTitle(PresetKind kind);

}  // namespace tarnwick
