#pragma once
#include <string>
#include <string_view>

namespace tarnwick::testui {

// One JSON value on one line, built from its front to its back. Bytes above ASCII
// are written as Windows' code page 1252 has them in common with Unicode.
class JsonLine {
 public:
  JsonLine& Begin(char bracket);  // '{' or '['
  JsonLine& End(char bracket);
  JsonLine& Key(std::string_view name);
  JsonLine& Text(std::string_view value);
  JsonLine& Number(long long value);

  [[nodiscard]] const std::string& Line() const { return line_; }

 private:
  void Separate();

  std::string line_;
};

}  // namespace tarnwick::testui
