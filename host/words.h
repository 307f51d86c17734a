#pragma once
#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarnwick::testhost {

// A line of a scenario that cannot be carried out, or whose expectation fails.
struct ScenarioError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// The words of a line, taken one by one. Texts in quotes, double or single, are one
// word, without the quotes; from a # on a line is a comment.
class Words {
 public:
  explicit Words(const std::string& line);

  [[nodiscard]] bool IsEmpty() const { return at_ == words_.size(); }
  // Throws ScenarioError, "there is no <what>", at the end of the line.
  std::string Next(const char* what);
  int NextInt(const char* what);
  // Takes the next word if it is this one.
  bool Accept(const std::string& word);
  // Throws ScenarioError if it is another one.
  void Demand(const std::string& word);
  // Throws ScenarioError unless all words have been taken.
  void End() const;

 private:
  std::vector<std::string> words_;
  std::size_t at_ = 0;
};

}  // namespace tarnwick::testhost
