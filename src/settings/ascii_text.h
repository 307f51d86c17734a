#pragma once
#include <string>
#include <string_view>

namespace tarnwick {

// Letters of names, keys and file formats, without regard to any locale: only
// A to Z have two cases.

[[nodiscard]] constexpr char AsciiLower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

[[nodiscard]] constexpr bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (AsciiLower(a[i]) != AsciiLower(b[i])) return false;
  }
  return true;
}

[[nodiscard]] inline std::string AsciiLowered(std::string_view text) {
  std::string lowered(text);
  for (char& c : lowered) c = AsciiLower(c);
  return lowered;
}

}  // namespace tarnwick
