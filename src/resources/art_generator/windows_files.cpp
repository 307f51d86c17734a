#include <stdexcept>

#include "resources/art_generator/picture.h"

namespace tarnwick {
namespace {

void Put(std::string& to, std::uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) to += static_cast<char>(value >> 8 * i & 0xFF);
}

std::uint32_t Unsigned(std::size_t value) {
  return static_cast<std::uint32_t>(value);
}

// `height` counts the rows of an icon's mask too.
std::string InformationHeader(int width, int height, int bits) {
  std::string head;
  Put(head, 40, 4);
  Put(head, static_cast<std::uint32_t>(width), 4);
  Put(head, static_cast<std::uint32_t>(height), 4);
  Put(head, 1, 2);
  Put(head, static_cast<std::uint32_t>(bits), 2);
  head.append(24, '\0');
  return head;
}

std::string IconEntry(const IconImage& image) {
  const int side = image.picture.width;
  if (image.picture.height != side) throw std::runtime_error("an icon that is no square");
  if (side > 255) return image.png;
  std::string entry = InformationHeader(side, 2 * side, 32);
  for (int y = side; y-- > 0;) {
    for (int x = 0; x < side; ++x) {
      const std::uint8_t* const p = image.picture.At(x, y);
      for (const int i : {2, 1, 0, 3}) entry += static_cast<char>(p[i]);
    }
  }
  // The mask, a bit a pixel, set where nothing is to be drawn.
  for (int y = side; y-- > 0;) {
    std::string row(static_cast<std::size_t>((side + 31) / 32 * 4), '\0');
    for (int x = 0; x < side; ++x) {
      if (image.picture.At(x, y)[3] != 0) continue;
      char& eight = row[static_cast<std::size_t>(x / 8)];
      eight = static_cast<char>(eight | 0x80 >> x % 8);
    }
    entry += row;
  }
  return entry;
}

}  // namespace

ArtPicture CutOut(const ArtPicture& from, int left, int top, int width, int height) {
  if (left < 0 || top < 0 || left + width > from.width || top + height > from.height) {
    throw std::runtime_error("is too small to cut this out of it");
  }
  ArtPicture part{width, height, {}};
  for (int y = 0; y < height; ++y) {
    const std::uint8_t* const row = from.At(left, top + y);
    part.samples.insert(part.samples.end(), row, row + 4 * static_cast<std::size_t>(width));
  }
  return part;
}

std::string EncodeBitmap(const ArtPicture& picture) {
  std::string pixels;
  for (int y = picture.height; y-- > 0;) {
    for (int x = 0; x < picture.width; ++x) {
      const std::uint8_t* const p = picture.At(x, y);
      if (p[3] != 255) {
        throw std::runtime_error("not opaque at " + std::to_string(x) + ", " + std::to_string(y));
      }
      for (const int i : {2, 1, 0}) pixels += static_cast<char>(p[i]);
    }
    pixels.append((4 - pixels.size() % 4) % 4, '\0');
  }
  std::string file = "BM";
  Put(file, Unsigned(54 + pixels.size()), 4);
  Put(file, 0, 4);
  Put(file, 54, 4);
  return file + InformationHeader(picture.width, picture.height, 24) + pixels;
}

std::string EncodeIcon(const std::vector<IconImage>& images, bool isCursor) {
  std::string directory;
  Put(directory, 0, 2);
  Put(directory, isCursor ? 2 : 1, 2);
  Put(directory, Unsigned(images.size()), 2);
  std::string entries;
  for (const IconImage& image : images) {
    const std::string entry = IconEntry(image);
    const int side = image.picture.width;
    // One byte a side, in which 256 is 0.
    Put(directory, static_cast<std::uint32_t>(side) & 0xFF, 1);
    Put(directory, static_cast<std::uint32_t>(side) & 0xFF, 1);
    Put(directory, 0, 2);
    Put(directory, isCursor ? static_cast<std::uint32_t>(image.hotX) : 1, 2);
    Put(directory, isCursor ? static_cast<std::uint32_t>(image.hotY) : 32, 2);
    Put(directory, Unsigned(entry.size()), 4);
    Put(directory, Unsigned(6 + 16 * images.size() + entries.size()), 4);
    entries += entry;
  }
  return directory + entries;
}

}  // namespace tarnwick
