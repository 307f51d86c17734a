#pragma once
#include <cstdint>

namespace tarnwick {

// One row of the background composite, `width` pixels of 4 bytes.
struct BackgroundRow {
  const std::uint8_t* source;
  const std::uint8_t* background;  // the toned ground
  const std::uint8_t* selection;   // null: none
  std::uint8_t* output;
  int width;
  bool fill;  // the result is opaque
};

void BackgroundRowPlain(const BackgroundRow& row);
void BackgroundRowAvx2(const BackgroundRow& row);

}  // namespace tarnwick
