#include "page_text.h"

#include <algorithm>
#include <stdexcept>

#include "utf8_text.h"

namespace tarnwick {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

bool IsControl(char c) {
  return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

bool IsDigitOrLetter(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// No shell gives these a meaning inside a word; "=" has one at its start.
bool IsPlainInShell(char c) {
  return IsDigitOrLetter(c) || std::string_view("_-./,:+@%=").find(c) != std::string_view::npos;
}

bool IsShowable(std::string_view word) {
  while (!word.empty()) {
    const std::size_t length = Utf8CharacterLength(word);
    if (length == 0 || IsControl(word[0])) return false;
    word.remove_prefix(length);
  }
  return true;
}

std::string QuotedByCodes(std::string_view word) {
  std::string quoted = "$'";
  while (!word.empty()) {
    const std::size_t length = Utf8CharacterLength(word);
    const char c = word[0];
    if (length == 0 || IsControl(c)) {
      const auto byte = static_cast<unsigned char>(c);
      // Three octal digits: a hexadecimal code would go on into a digit after it.
      quoted += '\\';
      for (const int shift : {6, 3, 0}) quoted += static_cast<char>('0' + ((byte >> shift) & 7));
    } else if (c == '\'' || c == '\\') {
      quoted += {'\\', c};
    } else {
      quoted += word.substr(0, length);
    }
    word.remove_prefix(length == 0 ? 1 : length);
  }
  return quoted + "'";
}

}  // namespace

std::string EscapeHtml(std::string_view text) {
  std::string escaped;
  while (!text.empty()) {
    const std::size_t length = Utf8CharacterLength(text);
    switch (text[0]) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      case '\'':
        escaped += "&#39;";
        break;
      default:
        escaped += length == 0 || IsControl(text[0]) ? kReplacement : text.substr(0, length);
    }
    text.remove_prefix(length == 0 ? 1 : length);
  }
  return escaped;
}

std::string JsonForScript(std::string_view json) {
  std::string safe;
  for (const char c : json) {
    if (c == '<') {
      safe += "\\u003c";
    } else {
      safe += c;
    }
  }
  return safe;
}

std::string ShellWord(std::string_view word) {
  if (!word.empty() && word[0] != '=' && std::all_of(word.begin(), word.end(), IsPlainInShell)) {
    return std::string(word);
  }
  if (!IsShowable(word)) return QuotedByCodes(word);
  std::string quoted = "'";
  for (const char c : word) {
    if (c == '\'') {
      quoted += "'\\''";
    } else {
      quoted += c;
    }
  }
  return quoted + "'";
}

std::string SlugOf(std::string_view text) {
  constexpr std::size_t kLongest = 60;
  std::string slug;
  for (const char c : text) {
    if (slug.size() == kLongest) break;
    if (IsDigitOrLetter(c)) {
      slug += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    } else if (!slug.empty() && slug.back() != '-') {
      slug += '-';
    }
  }
  if (!slug.empty() && slug.back() == '-') slug.pop_back();
  return slug;
}

std::string FillTemplate(std::string_view page,
                         std::span<const std::pair<std::string_view, std::string>> values) {
  std::string filled;
  for (;;) {
    const std::size_t begin = page.find("{{");
    const std::size_t end = begin == std::string_view::npos ? begin : page.find("}}", begin);
    filled += page.substr(0, end == std::string_view::npos ? end : begin);
    if (end == std::string_view::npos) return filled;
    const std::string_view name = page.substr(begin + 2, end - begin - 2);
    const auto value = std::find_if(values.begin(), values.end(),
                                    [&](const auto& entry) { return entry.first == name; });
    if (value == values.end()) throw std::logic_error("no value for " + std::string(name));
    filled += value->second;
    page.remove_prefix(end + 2);
  }
}

}  // namespace tarnwick
