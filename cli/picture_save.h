#pragma once
#include <string>
#include <vips/vips8>

#include "picture.h"
#include "picture_formats.h"

namespace tarnwick {

inline constexpr int kDefaultQuality = 92;

// Writes a picture to `path`, which must end in the format's extension. `quality`
// is 1..100 and counts for lossy formats; from 90 on, colours are kept at full
// resolution. What the format cannot hold goes, with a note: transparency onto
// white, planes beyond alpha.
//
// Errors  CliError (input failed), naming `shown`, the file as the user knows
//         it; std::bad_alloc without memory.
void SavePicture(const Picture& picture, const std::string& path, const std::string& shown,
                 const PictureFormat& format, int quality, PictureNotes& notes);

// The same for an image that needs nothing adapted.
void SaveImage(const vips::VImage& image, const std::string& path, const std::string& shown,
               const PictureFormat& format, int quality);

}  // namespace tarnwick
