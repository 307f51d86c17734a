#include "host/words.h"

namespace tarnwick::testhost {

Words::Words(const std::string& line) {
  for (std::size_t i = 0; i < line.size() && line[i] != '#';) {
    if (line[i] == ' ' || line[i] == '\t' || line[i] == '\r') {
      ++i;
      continue;
    }
    const bool isQuoted = line[i] == '"' || line[i] == '\'';
    const std::size_t begin = isQuoted ? i + 1 : i;
    const std::size_t end =
        isQuoted ? line.find(line[i], begin) : line.find_first_of(" \t\r", begin);
    if (isQuoted && end == std::string::npos) throw ScenarioError("a text does not end");
    words_.push_back(line.substr(begin, end == std::string::npos ? end : end - begin));
    i = end == std::string::npos ? line.size() : end + 1;
  }
}

std::string Words::Next(const char* what) {
  if (IsEmpty()) throw ScenarioError(std::string("there is no ") + what);
  return words_[at_++];
}

int Words::NextInt(const char* what) {
  const std::string word = Next(what);
  try {
    std::size_t used = 0;
    const int number = std::stoi(word, &used);
    if (used == word.size()) return number;
  } catch (const std::logic_error&) {
    // Said below.
  }
  throw ScenarioError(word + " is no number: " + what);
}

bool Words::Accept(const std::string& word) {
  if (IsEmpty() || words_[at_] != word) return false;
  ++at_;
  return true;
}

void Words::Demand(const std::string& word) {
  const std::string found = Next(word.c_str());
  if (found != word) throw ScenarioError(found + " stands where " + word + " has to");
}

void Words::End() const {
  if (!IsEmpty()) throw ScenarioError(words_[at_] + " is one word too many");
}

}  // namespace tarnwick::testhost
