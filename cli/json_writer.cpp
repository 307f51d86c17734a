#include "json_writer.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

#include "utf8_text.h"

namespace tarnwick {
namespace {

std::string Quoted(std::string_view value) {
  std::string text = "\"";
  while (!value.empty()) {
    const std::size_t length = Utf8CharacterLength(value);
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
