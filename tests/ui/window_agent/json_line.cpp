#include "ui/window_agent/json_line.h"

#include <cstdio>

namespace tarnwick::testui {
namespace {

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      quoted += '\\';
      quoted += c;
    } else if (byte < 0x20 || byte >= 0x7F) {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\u%04x", byte);
      quoted += escape;
    } else {
      quoted += c;
    }
  }
  return quoted + '"';
}

}  // namespace

void JsonLine::Separate() {
  if (line_.empty()) return;
  const char last = line_.back();
  if (last != '{' && last != '[' && last != ':') line_ += ',';
}

JsonLine& JsonLine::Begin(char bracket) {
  Separate();
  line_ += bracket;
  return *this;
}

JsonLine& JsonLine::End(char bracket) {
  line_ += bracket;
  return *this;
}

JsonLine& JsonLine::Key(std::string_view name) {
  Separate();
  line_ += Quoted(name) + ':';
  return *this;
}

JsonLine& JsonLine::Text(std::string_view value) {
  Separate();
  line_ += Quoted(value);
  return *this;
}

JsonLine& JsonLine::Number(long long value) {
  Separate();
  line_ += std::to_string(value);
  return *this;
}

}  // namespace tarnwick::testui
