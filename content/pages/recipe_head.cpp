#include "pages/recipe_head.h"

namespace tarnwick::content {

std::optional<std::string> HeadSentence(std::istream& source, std::string_view name) {
  std::string head;
  // An empty comment line ends the paragraph, as does the first line of code.
  for (std::string line; std::getline(source, line) && line.starts_with("// ");) {
    if (!head.empty()) head += ' ';
    head += line.substr(3);
  }
  const std::string opening = std::string(name) + ": ";
  if (!head.starts_with(opening)) return std::nullopt;
  // A point within a word or a number ends no sentence.
  std::size_t end = head.find(". ");
  if (end == std::string::npos && head.ends_with('.')) end = head.size() - 1;
  if (end == std::string::npos || end <= opening.size()) return std::nullopt;
  return head.substr(opening.size(), end - opening.size());
}

}  // namespace tarnwick::content
