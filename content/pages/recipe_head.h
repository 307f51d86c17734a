#pragma once
#include <istream>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick::content {

// Which real thing a texture imitates: the first sentence of its recipe's head
// comment, that is "Name: the thing. More about it.", without its full stop.
// None if the source begins otherwise, or for another name.
[[nodiscard]] std::optional<std::string> HeadSentence(std::istream& source, std::string_view name);

}  // namespace tarnwick::content
