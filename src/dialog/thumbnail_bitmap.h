#pragma once
#include <windows.h>

#include <cstdint>
#include <vector>

#include "textures/thumbnail_picture.h"

namespace tarnwick {

// A small picture ready to be put on the screen.
class ThumbnailBitmap {
 public:
  ThumbnailBitmap() = default;
  explicit ThumbnailBitmap(const ThumbnailPicture& picture);

  [[nodiscard]] bool IsEmpty() const { return rows_.empty(); }
  void Draw(HDC dc, int x, int y) const;

 private:
  int width_ = 0;
  int height_ = 0;
  std::vector<std::uint8_t> rows_;  // blue, green, red from the top, padded to 4 bytes
};

}  // namespace tarnwick
