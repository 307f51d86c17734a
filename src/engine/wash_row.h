#pragma once
#include <cstdint>

#include "base/cpu.h"

namespace tarnwick {

// One row of a wash, `width` pixels.
//
// Strengths run in reverse: 255 leaves the picture, 0 is the full effect.
struct WashRow {
  const std::uint8_t* texture = nullptr;
  const std::uint8_t* coverage = nullptr;
  const std::uint8_t* edge = nullptr;
  const std::uint8_t* selection = nullptr;  // null: none
  const std::uint8_t* save = nullptr;       // pure surface, 4 bytes a pixel; null: none
  std::uint8_t* output = nullptr;           // 4 bytes a pixel
  float* strength = nullptr;                // scratch for `width` strengths
  int width = 0;
};

// What is the same for all rows of a wash.
struct WashLook {
  int intensity = 100;
  bool inside = true;
  std::uint8_t type = 0;
  std::uint8_t stain[3] = {};
  const std::uint8_t* table = nullptr;  // 256 tones
  bool identity = false;                // the table changes nothing
};

void WashRowPlain(const WashRow& row, const WashLook& look);
void WashRowAvx2(const WashRow& row, const WashLook& look);

}  // namespace tarnwick
