#pragma once
#include <filesystem>
#include <vips/vips8>

#include "picture.h"

namespace tarnwick {

// Reads a picture as picture.h tells. What was changed on the way is added to
// `notes`, without the file's name.
//
// Errors  CliError (input failed) for a file that is not there, is no picture,
//         is too large or breaks off; std::bad_alloc without memory.
[[nodiscard]] Picture LoadPicture(const std::filesystem::path& path, PictureNotes& notes);

// The same as one plane of 8-bit lightness, upright, in memory of its own.
[[nodiscard]] vips::VImage LoadGreyPicture(const std::filesystem::path& path, PictureNotes& notes);

// A selection: 255 selected, 0 not, greys in between; 16 bits become 8, alpha is
// left out. Values count as they stand, whatever profile the file has.
//
// Errors  as above; wrong use for a picture with colours in it.
[[nodiscard]] vips::VImage LoadSelection(const std::filesystem::path& path);

}  // namespace tarnwick
