#include "dialog/thumbnail_bitmap.h"

namespace tarnwick {

ThumbnailBitmap::ThumbnailBitmap(const ThumbnailPicture& picture)
    : width_(picture.width), height_(picture.height) {
  const auto width = static_cast<std::size_t>(width_);
  const std::size_t rowBytes = (width * 3 + 3) / 4 * 4;
  rows_.resize(rowBytes * static_cast<std::size_t>(height_));
  for (std::size_t y = 0; y < static_cast<std::size_t>(height_); ++y) {
    const std::uint8_t* from = picture.samples.data() + y * width * 3;
    std::uint8_t* to = rows_.data() + y * rowBytes;
    for (std::size_t x = 0; x < width; ++x, from += 3, to += 3) {
      to[0] = from[2];
      to[1] = from[1];
      to[2] = from[0];
    }
  }
}

void ThumbnailBitmap::Draw(HDC dc, int x, int y) const {
  if (IsEmpty()) return;
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, width_, -height_, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
  SetDIBitsToDevice(dc, x, y, static_cast<DWORD>(width_), static_cast<DWORD>(height_), 0, 0, 0,
                    static_cast<UINT>(height_), rows_.data(), &info, DIB_RGB_COLORS);
}

}  // namespace tarnwick
