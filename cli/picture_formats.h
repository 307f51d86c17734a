#pragma once
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

namespace tarnwick {

// A kind of picture file that can be written.
struct PictureFormat {
  std::string_view extension;  // lower case, without the point
  bool color;                  // false: grey only
  bool alpha;                  // keeps transparency
  bool cmyk;                   // keeps cyan, magenta, yellow, black
  bool manyPlanes;             // keeps planes beyond alpha
  bool profile;                // says what its colours mean; else they are sRGB
  bool lossy;                  // heeds --quality
};

[[nodiscard]] std::span<const PictureFormat> PictureFormats();

// The format of a name by its extension; wrong use if it has none or another.
// With `grey`, grey-only formats count too.
[[nodiscard]] const PictureFormat& FormatOf(const std::filesystem::path& path, bool grey = false);

// The same by extension, with or without the point, whatever its case; null if
// there is none.
[[nodiscard]] const PictureFormat* FindFormat(std::string_view extension);

// "jpg, png, tif ...": for messages and help.
[[nodiscard]] std::string FormatNames();

}  // namespace tarnwick
