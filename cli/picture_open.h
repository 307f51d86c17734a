#pragma once
#include <filesystem>
#include <vips/vips8>

#include "picture.h"

namespace tarnwick {

// Width and height of a picture once it stands upright.
struct PictureSize {
  int width = 0;
  int height = 0;
};

// Opens a picture file; its samples are still unread, to be taken once from top
// to bottom. A size beyond the limit is refused before any sample is read.
//
// Errors  CliError (input failed) when it is not there, is no picture, or is
//         too large.
[[nodiscard]] vips::VImage OpenPictureFile(const std::filesystem::path& path, PictureNotes& notes);

// The size by the header alone. Errors as above.
[[nodiscard]] PictureSize ReadPictureSize(const std::filesystem::path& path);

}  // namespace tarnwick
