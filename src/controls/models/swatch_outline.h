#pragma once
#include <cstdint>

namespace tarnwick {

// The outline of a colour swatch: one channel of it for one channel of its colour.
// With the pointer on it the inverse; else something that is seen on any colour.
[[nodiscard]] constexpr std::uint8_t OutlineChannel(std::uint8_t channel, bool isHot) {
  const int inverse = 255 - channel;
  if (isHot) return static_cast<std::uint8_t>(inverse);
  return static_cast<std::uint8_t>(inverse <= 127 ? inverse + 127 : inverse / 2);
}

}  // namespace tarnwick
