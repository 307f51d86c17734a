#include "json_writer.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace tarnwick {
namespace {

// Bytes of the UTF-8 character at the start of `text`, 0 if there is none.
std::size_t CharacterLength(std::string_view text) {
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

std::string Quoted(std::string_view value) {
  std::string text = "\"";
  while (!value.empty()) {
    const std::size_t length = CharacterLength(value);
    const char c = value[0];
    if (length == 0) {
      text += "\\ufffd";
    } else if (c == '"' || c == '\\') {
      text += {'\\', c};
    } else if (static_cast<unsigned char>(c) < 0x20) {
      std::array<char, 8> code{};
      std::snprintf(code.data(), code.size(), "\\u%04x", static_cast<unsigned>(c));
      text += code.data();
    } else {
      text += value.substr(0, length);
    }
    value.remove_prefix(length == 0 ? 1 : length);
  }
  return text + '"';
}

}  // namespace

JsonWriter& JsonWriter::Key(std::string_view name) {
  BeforeValue();
  text_ += Quoted(name) + ": ";
  afterKey_ = true;
  return *this;
}

JsonWriter& JsonWriter::String(std::string_view value) {
  return Raw(Quoted(value));
}

JsonWriter& JsonWriter::Number(std::int64_t value) {
  return Raw(std::to_string(value));
}

JsonWriter& JsonWriter::Number(double value) {
  if (!std::isfinite(value)) return Null();
  std::array<char, 32> digits{};
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value);
  return Raw({digits.data(), result.ptr});
}

JsonWriter& JsonWriter::Bool(bool value) {
  return Raw(value ? "true" : "false");
}

JsonWriter& JsonWriter::Null() {
  return Raw("null");
}

JsonWriter& JsonWriter::Raw(std::string_view value) {
  BeforeValue();
  text_ += value;
  return *this;
}

JsonWriter& JsonWriter::Open(char bracket) {
  BeforeValue();
  text_ += bracket;
  hasMembers_.push_back(false);
  return *this;
}

JsonWriter& JsonWriter::Close(char bracket) {
  const bool hadMembers = hasMembers_.back();
  hasMembers_.pop_back();
  if (hadMembers) NewLine();
  text_ += bracket;
  return *this;
}

void JsonWriter::BeforeValue() {
  if (afterKey_) {
    afterKey_ = false;
    return;
  }
  if (hasMembers_.empty()) return;
  if (hasMembers_.back()) text_ += ',';
  hasMembers_.back() = true;
  NewLine();
}

void JsonWriter::NewLine() {
  text_ += "\n" + std::string(2 * hasMembers_.size(), ' ');
}

}  // namespace tarnwick
