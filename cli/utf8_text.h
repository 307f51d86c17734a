#pragma once
#include <cstddef>
#include <string_view>

namespace tarnwick {

// Bytes of the UTF-8 character at the start of `text`, which is not empty; 0 if
// none begins there: file names may hold any bytes.
[[nodiscard]] std::size_t Utf8CharacterLength(std::string_view text);

}  // namespace tarnwick
