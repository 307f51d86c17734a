#include "builder/contact_sheet.h"

#include <algorithm>
#include <cstddef>
#include <fstream>

namespace tarnwick::content {
namespace {

constexpr int kGap = 8;
constexpr std::uint8_t kPaper = 96;

std::size_t At(const GreyPicture& picture, int x, int y) {
  return static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width) +
         static_cast<std::size_t>(x);
}

GreyPicture Blank(int width, int height, std::uint8_t value) {
  return {width, height,
          std::vector<std::uint8_t>(
              static_cast<std::size_t>(width) * static_cast<std::size_t>(height), value)};
}

void Paste(const GreyPicture& picture, int left, int top, GreyPicture& onto) {
  for (int y = 0; y < picture.height; ++y) {
    std::copy_n(picture.samples.begin() + static_cast<std::ptrdiff_t>(At(picture, 0, y)),
                picture.width,
                onto.samples.begin() + static_cast<std::ptrdiff_t>(At(onto, left, top + y)));
  }
}

// Where cell `index` of `count` begins along a side of `length`.
int Boundary(int length, int index, int count) {
  return static_cast<int>(static_cast<std::int64_t>(length) * index / count);
}

}  // namespace

GreyPicture Reduced(const GreyPicture& picture, int width, int height) {
  // The side that is the tighter fit decides.
  if (static_cast<std::int64_t>(picture.width) * height >
      static_cast<std::int64_t>(picture.height) * width) {
    height = Boundary(picture.height, width, picture.width);
  } else {
    width = Boundary(picture.width, height, picture.height);
  }
  width = std::clamp(width, 1, picture.width);
  height = std::clamp(height, 1, picture.height);
  GreyPicture small = Blank(width, height, 0);
  for (int y = 0; y < height; ++y) {
    const int top = Boundary(picture.height, y, height);
    const int bottom = Boundary(picture.height, y + 1, height);
    for (int x = 0; x < width; ++x) {
      const int left = Boundary(picture.width, x, width);
      const int right = Boundary(picture.width, x + 1, width);
      std::int64_t sum = 0;
      for (int j = top; j < bottom; ++j) {
        for (int i = left; i < right; ++i) sum += picture.samples[At(picture, i, j)];
      }
      const std::int64_t area = static_cast<std::int64_t>(bottom - top) * (right - left);
      small.samples[At(small, x, y)] = static_cast<std::uint8_t>((sum + area / 2) / area);
    }
  }
  return small;
}

GreyPicture ChooserTile(const GreyPicture& picture, int width, int height) {
  GreyPicture tile = Blank(width, height, 0);
  const int sourceWidth = std::min(width * 4, picture.width);
  const int sourceHeight = std::min(height * 4, picture.height);
  const int left = (picture.width - sourceWidth) / 2;
  const int top = (picture.height - sourceHeight) / 2;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const int sx = left + Boundary(sourceWidth, x, width);
      const int sy = top + Boundary(sourceHeight, y, height);
      tile.samples[At(tile, x, y)] = picture.samples[At(picture, sx, sy)];
    }
  }
  return tile;
}

GreyPicture Stacked(const GreyPicture& above, const GreyPicture& below) {
  GreyPicture stack =
      Blank(std::max(above.width, below.width), above.height + kGap + below.height, kPaper);
  Paste(above, (stack.width - above.width) / 2, 0, stack);
  Paste(below, (stack.width - below.width) / 2, above.height + kGap, stack);
  return stack;
}

GreyPicture ContactSheet(const std::vector<GreyPicture>& pictures, int columns, int cellWidth,
                         int cellHeight) {
  const int count = static_cast<int>(pictures.size());
  columns = std::clamp(columns, 1, std::max(count, 1));
  const int rows = (count + columns - 1) / columns;
  GreyPicture sheet =
      Blank(columns * (cellWidth + kGap) + kGap, rows * (cellHeight + kGap) + kGap, kPaper);
  for (int i = 0; i < count; ++i) {
    const GreyPicture& picture = pictures[static_cast<std::size_t>(i)];
    Paste(picture, kGap + i % columns * (cellWidth + kGap) + (cellWidth - picture.width) / 2,
          kGap + i / columns * (cellHeight + kGap) + (cellHeight - picture.height) / 2, sheet);
  }
  return sheet;
}

bool WritePgm(const std::string& path, const GreyPicture& picture) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file << "P5\n" << picture.width << ' ' << picture.height << "\n255\n";
  file.write(reinterpret_cast<const char*>(picture.samples.data()),
             static_cast<std::streamsize>(picture.samples.size()));
  file.close();
  return !file.fail();
}

}  // namespace tarnwick::content
