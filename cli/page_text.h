#pragma once
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace tarnwick {

// Text of any origin on its way into a page or onto a command line.

// For the text of an element and for a quoted attribute. A byte that is no UTF-8
// becomes the replacement character; so do control characters, which no page may
// hold.
[[nodiscard]] std::string EscapeHtml(std::string_view text);

// JSON that may stand in a <script> element: nothing in it ends the element or
// begins a comment. It means the same.
[[nodiscard]] std::string JsonForScript(std::string_view json);

// A word for a shell, not the first one: as it is where that is safe, else quoted.
// Words with bytes that cannot be shown take the form $'...', which bash, zsh and
// the POSIX shell of 2024 know.
[[nodiscard]] std::string ShellWord(std::string_view word);

// A name of a-z, 0-9 and single "-", at most 60 bytes, for file names and links
// that hold on every system; empty if `text` has no letter or digit of ASCII.
[[nodiscard]] std::string SlugOf(std::string_view text);

// `page` with each {{name}} replaced by its value. What a value holds is not
// looked at again. Every name must be known.
[[nodiscard]] std::string FillTemplate(
    std::string_view page, std::span<const std::pair<std::string_view, std::string>> values);

}  // namespace tarnwick
