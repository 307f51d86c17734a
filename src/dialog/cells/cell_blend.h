#pragma once
#include <array>
#include <cstdint>

#include "base/truncate.h"

namespace tarnwick {

// A byte of a colour of 0..255, truncated; what lies beyond is limited.
[[nodiscard]] inline std::uint8_t CellByte(float value) {
  return static_cast<std::uint8_t>(LimitToByteRange(value));
}

// Three bytes of a cell: `color` at that alpha over `under`, or over black if that is
// null.
inline void PutOver(const std::array<float, 3>& color, int alpha, const std::uint8_t* under,
                    std::uint8_t* out) {
  const float a = static_cast<float>(alpha) / 255.0F;
  for (std::size_t c = 0; c < 3; ++c) {
    float value = color[c];
    if (alpha < 255) {
      value *= a;
      if (under != nullptr) value += static_cast<float>(under[c]) * (1.0F - a);
    }
    out[c] = CellByte(value);
  }
}

}  // namespace tarnwick
