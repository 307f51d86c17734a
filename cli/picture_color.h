#pragma once
#include <vips/vips8>

#include "picture.h"

namespace tarnwick {

// Brings whatever a file held to 8-bit red, green, blue (and alpha). Nothing is
// computed yet: the result is read once, like `image`.
//
// 8-bit RGB    untouched, under its own profile.
// Grey         three equal planes; a grey profile is applied and replaced by
//              sRGB, since it could not describe the result.
// 16 bits      the upper 8, with a note.
// CMYK         through its profile (or the built-in one) to sRGB.
// The rest     to sRGB as far as the library can, with a note.
//
// Sets the colour fields of `picture` and its image. Throws vips::VError.
void ToPaintable(const vips::VImage& image, Picture& picture, PictureNotes& notes);

// The way back for a picture that was CMYK: from sRGB through its profile, with
// alpha and further planes kept. Throws vips::VError.
[[nodiscard]] vips::VImage BackToCmyk(const vips::VImage& image,
                                      const std::vector<std::uint8_t>& profile);

// Colours by sRGB where a profile says otherwise, without the profile then.
// Throws vips::VError.
[[nodiscard]] vips::VImage ToUntaggedRgb(const vips::VImage& image);

// One plane of lightness, 8-bit, on white where it is transparent.
[[nodiscard]] vips::VImage ToGrey(const vips::VImage& image, PictureNotes& notes);

// Colour planes without alpha and others: 1, 3 or 4.
[[nodiscard]] int ColorPlanes(const vips::VImage& image);

}  // namespace tarnwick
