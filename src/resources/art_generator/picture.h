#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace tarnwick {

// A picture as drawn: rows from the top, four bytes a pixel, red, green, blue and alpha,
// colours not multiplied by alpha.
struct ArtPicture {
  int width = 0, height = 0;
  std::vector<std::uint8_t> samples;  // width * height * 4

  [[nodiscard]] const std::uint8_t* At(int x, int y) const {
    return samples.data() + (static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                             static_cast<std::size_t>(x)) *
                                4;
  }
};

// Reads a PNG with 8-bit RGB or RGBA samples, not interlaced. An exception for all others.
[[nodiscard]] ArtPicture DecodePng(const std::string& bytes);

// A part of a picture. An exception if it reaches beyond.
[[nodiscard]] ArtPicture CutOut(const ArtPicture& from, int left, int top, int width, int height);

// A 24-bit bitmap file. An exception if some pixel is not opaque: such a source leaves
// a hole that would come out black.
[[nodiscard]] std::string EncodeBitmap(const ArtPicture& picture);

// An icon or cursor file of square pictures, 32 bits a pixel with a mask; those of 256
// pixels are stored as the PNGs they were made from.
struct IconImage {
  ArtPicture picture;
  std::string png;
  int hotX = 0, hotY = 0;  // of a cursor
};
[[nodiscard]] std::string EncodeIcon(const std::vector<IconImage>& images, bool isCursor);

}  // namespace tarnwick
