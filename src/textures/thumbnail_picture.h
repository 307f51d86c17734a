#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarnwick {

// A small picture for a cell: red, green, blue of each pixel, top row first,
// rows without padding.
struct ThumbnailPicture {
  ThumbnailPicture() = default;
  ThumbnailPicture(int w, int h)
      : width(w),
        height(h),
        samples(static_cast<std::size_t>(w) * static_cast<std::size_t>(h) * 3) {}

  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> samples;
};

// The sides of a cell's picture.
struct ThumbnailSize {
  int width = 1;   // 1 or more
  int height = 1;  // 1 or more
};

// In the drawer; the filmstrip; source pixels per thumbnail pixel in both, and in
// the window that shows a texture's details.
inline constexpr ThumbnailSize kDrawerThumbnail{112, 84};
inline constexpr ThumbnailSize kFilmstripThumbnail{61, 61};
inline constexpr float kThumbnailScale = 4.0F;
inline constexpr float kDetailScale = 2.0F;

}  // namespace tarnwick
