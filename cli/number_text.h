#pragma once
#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>

namespace tarnwick {

// The whole of `text` as a decimal number of type T, or nothing: no blanks, no
// sign of plus, no overflow.
template <typename T>
[[nodiscard]] std::optional<T> ParseNumber(std::string_view text) {
  T value{};
  const char* end = text.data() + text.size();
  const auto [stop, fault] = std::from_chars(text.data(), end, value);
  if (fault != std::errc() || stop != end) return std::nullopt;
  return value;
}

}  // namespace tarnwick
