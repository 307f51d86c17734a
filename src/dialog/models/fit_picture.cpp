#include "dialog/models/fit_picture.h"

#include <algorithm>

namespace tarnwick {
namespace {

// 16.16 fixed point: where the middle of sample `i` of `to` falls among `from` ones.
struct Between {
  std::size_t first, second;
  std::uint32_t part;  // of the second, in 256ths
};

Between PlaceOf(int i, int from, int to) {
  const std::int64_t wanted =
      ((2 * static_cast<std::int64_t>(i) + 1) * from * 65536 / to - 65536) / 2;
  const std::int64_t last = static_cast<std::int64_t>(from - 1) * 65536;
  const std::int64_t place = std::clamp<std::int64_t>(wanted, 0, last);
  const auto first = static_cast<std::size_t>(place >> 16);
  return {first, std::min(first + 1, static_cast<std::size_t>(from - 1)),
          static_cast<std::uint32_t>(place >> 8) & 255U};
}

}  // namespace

ThumbnailPicture FitPicture(ThumbnailPicture picture, ThumbnailSize size) {
  if (picture.width == size.width && picture.height == size.height) return picture;
  if (picture.width < 1 || picture.height < 1 || size.width < 1 || size.height < 1) return picture;
  ThumbnailPicture fitted(size.width, size.height);
  const auto rowSamples = static_cast<std::size_t>(picture.width) * 3;
  std::uint8_t* to = fitted.samples.data();
  for (int y = 0; y < size.height; ++y) {
    const Between row = PlaceOf(y, picture.height, size.height);
    const std::uint8_t* const upper = picture.samples.data() + row.first * rowSamples;
    const std::uint8_t* const lower = picture.samples.data() + row.second * rowSamples;
    for (int x = 0; x < size.width; ++x) {
      const Between column = PlaceOf(x, picture.width, size.width);
      for (std::size_t c = 0; c < 3; ++c) {
        const auto across = [&](const std::uint8_t* samples) {
          return samples[column.first * 3 + c] * (256U - column.part) +
                 samples[column.second * 3 + c] * column.part;
        };
        *to++ = static_cast<std::uint8_t>(
            (across(upper) * (256U - row.part) + across(lower) * row.part + 32768U) >> 16);
      }
    }
  }
  return fitted;
}

ThumbnailPicture CentreOf(ThumbnailPicture picture, ThumbnailSize size) {
  const int width = std::min(picture.width, size.width);
  const int height = std::min(picture.height, size.height);
  if (width < 1 || height < 1 || (width == picture.width && height == picture.height)) {
    return picture;
  }
  ThumbnailPicture centre(width, height);
  const auto left = static_cast<std::size_t>((picture.width - width) / 2);
  const auto top = static_cast<std::size_t>((picture.height - height) / 2);
  const std::size_t from = static_cast<std::size_t>(picture.width) * 3;
  const std::size_t to = static_cast<std::size_t>(width) * 3;
  for (std::size_t y = 0; y < static_cast<std::size_t>(height); ++y) {
    std::copy_n(picture.samples.begin() + static_cast<std::ptrdiff_t>((top + y) * from + left * 3),
                to, centre.samples.begin() + static_cast<std::ptrdiff_t>(y * to));
  }
  return centre;
}

}  // namespace tarnwick
