#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>
#include <vips/vips8>

namespace tarnwick {

// A picture in memory, ready to be aged in place: upright, 8 bits a sample,
// interleaved red, green, blue, then alpha (not premultiplied) and further
// planes if the file has them. What else the file held (profile, EXIF, XMP,
// IPTC ...) is attached and goes with it into the result.
struct Picture {
  vips::VImage image;

  // The picture came as cyan, magenta, yellow, black and goes back so, under
  // its own profile; an empty one means the library's built-in profile.
  bool fromCmyk = false;
  std::vector<std::uint8_t> cmykProfile;

  [[nodiscard]] int Width() const { return image.width(); }
  [[nodiscard]] int Height() const { return image.height(); }
  [[nodiscard]] int Planes() const { return image.bands(); }
  [[nodiscard]] std::ptrdiff_t RowBytes() const {
    return static_cast<std::ptrdiff_t>(Width()) * Planes();
  }
  // The first sample; the picture's one owner may write through it.
  [[nodiscard]] std::uint8_t* Pixels() const;
};

// What was changed on the way in or out, one line each.
using PictureNotes = std::vector<std::string>;

// An empty picture of another size that takes over what `from` has attached.
[[nodiscard]] Picture PictureLike(const Picture& from, int width, int height);

// Copies what `from` has attached, but not what describes its shape; only fields
// whose names begin with `prefix`.
void CopyAttachments(const vips::VImage& from, const vips::VImage& to,
                     std::string_view prefix = {});

// A copy in memory of its own, which may be written to. Everything that `image`
// was still to do is done now.
[[nodiscard]] vips::VImage IntoMemory(const vips::VImage& image);

}  // namespace tarnwick
