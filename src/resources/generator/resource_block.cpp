#include "resources/generator/resource_block.h"

#include <cstdio>
#include <stdexcept>

namespace tarnwick {
namespace {

// Three octal digits always, so that a digit may follow.
std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte > 0x7E || c == '\\' || c == '"') {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\%03o", static_cast<unsigned>(byte));
      quoted += escape;
    } else {
      quoted += c;
    }
  }
  return quoted + '"';
}

}  // namespace

void ResourceBlock::Add(std::string_view value, std::size_t bytes) {
  std::string& values = lines_.back().values;
  if (!values.empty()) values += ", ";
  values += value;
  size_ += bytes;
}

void ResourceBlock::EndLine() {
  if (!lines_.back().values.empty()) lines_.emplace_back();
}

void ResourceBlock::Remark(std::string_view text) {
  lines_.back().remark = text;
  EndLine();
}

// The compiler knows numbers of 16 and 32 bits; a byte goes as a character.
void ResourceBlock::Byte(std::uint8_t value) {
  Text(std::string(1, static_cast<char>(value)));
}

void ResourceBlock::Word(std::uint16_t value) {
  Add(std::to_string(value), 2);
}

void ResourceBlock::Long(std::uint32_t value) {
  Add(std::to_string(value) + 'L', 4);
}

void ResourceBlock::Code(std::uint32_t code) {
  std::string characters;
  for (int i = 0; i < 4; ++i) characters += static_cast<char>(code >> (8 * i) & 0xFF);
  Text(characters);
}

void ResourceBlock::Text(std::string_view text) {
  if (!text.empty()) Add(Quoted(text), text.size());
}

void ResourceBlock::ZeroText(std::string_view text) {
  Text(std::string(text) + '\0');
}

void ResourceBlock::CountedText(std::string_view text) {
  if (text.size() > 255) throw std::length_error("a counted text has at most 255 characters");
  Text(static_cast<char>(text.size()) + std::string(text));
}

void ResourceBlock::PadTo(std::size_t multiple) {
  const std::size_t over = size_ % multiple;
  if (over != 0) Text(std::string(multiple - over, '\0'));
}

void ResourceBlock::Append(const ResourceBlock& other) {
  for (const Line& line : other.lines_) {
    if (line.values.empty()) continue;
    Add(line.values, 0);
    if (!line.remark.empty()) Remark(line.remark);
  }
  size_ += other.size_;
}

std::string ResourceBlock::Script(std::string_view name) const {
  std::string script = std::string(name) + "\nBEGIN\n";
  bool first = true;
  for (const Line& line : lines_) {
    if (line.values.empty()) continue;
    script += (first ? "    " : ",\n    ") + line.values;
    if (!line.remark.empty()) script += "  /* " + line.remark + " */";
    first = false;
  }
  return script + "\nEND\n";
}

}  // namespace tarnwick
