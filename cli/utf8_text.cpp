#include "utf8_text.h"

namespace tarnwick {

std::size_t Utf8CharacterLength(std::string_view text) {
  const auto at = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned first = at(0);
  if (first < 0x80) return 1;
  std::size_t length = 0;
  if (first >= 0xC2 && first <= 0xDF) length = 2;
  if (first >= 0xE0 && first <= 0xEF) length = 3;
  if (first >= 0xF0 && first <= 0xF4) length = 4;
  if (length == 0 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((at(i) & 0xC0u) != 0x80u) return 0;
  }
  // Overlong forms, surrogates, and what lies beyond the last code point.
  if (first == 0xE0 && at(1) < 0xA0) return 0;
  if (first == 0xED && at(1) > 0x9F) return 0;
  if (first == 0xF0 && at(1) < 0x90) return 0;
  if (first == 0xF4 && at(1) > 0x8F) return 0;
  return length;
}

}  // namespace tarnwick
