#pragma once
#include <array>
#include <cstdint>
#include <vector>

namespace tarnwick {

// The strips above and below the preview pane, which round its corners off: black,
// and at both ends the dialog's face coming through.

inline constexpr int kStripRows = 33;
inline constexpr int kShadeColumns = 20;

// How much of the face shows in the lower left corner, 0..1. Rows from the top.
using StripShade = std::array<std::array<float, kShadeColumns>, kStripRows>;

// Blue, green, red.
using FaceColor = std::array<std::uint8_t, 3>;

// Bytes of a row of `width` pixels of three, padded to a multiple of 4.
[[nodiscard]] constexpr int StripRowBytes(int width) {
  return (width * 3 + 3) / 4 * 4;
}

// kStripRows rows from the top, three bytes a pixel. The upper strip has the rows of
// the shade upside down; the right end mirrors the left one. Where a strip is too
// short for both, the right end counts. Empty for a width below 1.
[[nodiscard]] std::vector<std::uint8_t> BuildShadowStrip(const StripShade& shade,
                                                         const FaceColor& face, int width,
                                                         bool isUpper);

}  // namespace tarnwick
