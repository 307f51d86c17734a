#pragma once
#include <filesystem>
#include <string>

#include "resources/art_generator/drawing.h"

namespace tarnwick {

// The part of docs/art.md that follows from the table: a section for each ground that
// controls lie on, with a sheet that shows all their states side by side, and the header
// put together at two widths. The sheets go into `pictures` as PNGs. Needs the pictures
// of the module in folders.out.
[[nodiscard]] std::string ArtPage(const ArtFolders& folders, const std::filesystem::path& pictures);

}  // namespace tarnwick
