#pragma once
#include <array>
#include <cstdint>

#include "textures/thumbnail_picture.h"

namespace tarnwick {

// The picture of a cell that has none: a frame and its two diagonals, in smooth lines of
// grey 192 on `ground` (red, green, blue).
[[nodiscard]] ThumbnailPicture CrossedBox(ThumbnailSize size,
                                          const std::array<std::uint8_t, 3>& ground);

}  // namespace tarnwick
