#include "support/flat_json.h"

#include <cctype>

#include "support/pnm.h"

namespace tarnwick::testing {
namespace {

// Strings and bare words; punctuation is one character each.
std::vector<std::string> Tokens(const std::string& text) {
  std::vector<std::string> tokens;
  for (std::size_t i = 0; i < text.size();) {
    const char c = text[i];
    if (std::isspace(static_cast<unsigned char>(c)) != 0) {
      ++i;
    } else if (c == '"') {
      const std::size_t end = text.find('"', i + 1);
      tokens.push_back("\"" + text.substr(i + 1, end - i - 1));
      i = end + 1;
    } else if (std::string("{}[]:,").find(c) != std::string::npos) {
      tokens.emplace_back(1, c);
      ++i;
    } else {
      const std::size_t end = text.find_first_of("{}[]:, \t\r\n", i);
      tokens.push_back(text.substr(i, end - i));
      i = end;
    }
  }
  return tokens;
}

std::string Plain(const std::string& token) {
  return !token.empty() && token[0] == '"' ? token.substr(1) : token;
}

}  // namespace

std::map<std::string, std::vector<std::string>> ReadFlatJson(const std::string& path) {
  const std::vector<std::string> tokens = Tokens(ReadText(path));
  std::map<std::string, std::vector<std::string>> members;
  std::string name;
  int depth = 0;  // of arrays
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    const std::string& token = tokens[i];
    if (token == "[") ++depth;
    if (token == "]") --depth;
    if (token.size() == 1 && std::string("{}[]:,").find(token[0]) != std::string::npos) continue;
    if (depth == 0 && i + 1 < tokens.size() && tokens[i + 1] == ":") {
      name = Plain(token);
    } else {
      members[name].push_back(Plain(token));
    }
  }
  return members;
}

}  // namespace tarnwick::testing
