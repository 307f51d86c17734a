#pragma once
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "presets/color_categories.h"

namespace tarnwick {

// The colour presets as the drawer lists them, and the back palettes as the
// filmstrip does. Folders are not scanned here: their order is the caller's.

// The drawer's first entry: the colours that come with a reset.
inline constexpr char kResetColorsName[] = "Reset Colors";

// The filmstrip's first entry. It stands for no palette and has no picture.
inline constexpr char kNoPaletteName[] = "none";

struct ColorRecord {
  std::string fileName;                 // with extension; "Reset Colors" has none
  std::vector<std::string> categories;  // none if the file names none
};

// "Reset Colors", then a record for each name in the order given.
[[nodiscard]] std::vector<ColorRecord> ListColorPresets(const std::filesystem::path& folder,
                                                        std::span<const std::string> names);

// The places in `records` of those that show under a row of the category box:
// the first one always does.
[[nodiscard]] std::vector<int> FilterColors(std::span<const ColorRecord> records, int row,
                                            std::string_view text);

// The category of a file; false when it is none that has one. See color_preset.h.
[[nodiscard]] bool ReadColorCategoryOf(const std::filesystem::path& path, std::string& category);

// The name without a final ".twkpst", by case.
[[nodiscard]] std::string ColorDisplayName(const std::string& fileName);

// The filmstrip's names for the files of its folder: "none", which has no look,
// then each ".twkpst" without its extension. A file called "none" adds no second
// one; a folder without presets gives no names at all.
[[nodiscard]] std::vector<std::string> ListBackPalettes(std::span<const std::string> fileNames);

}  // namespace tarnwick
