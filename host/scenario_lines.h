#pragma once
#include <string>
#include <vector>

namespace tarnwick::testhost {

struct ScenarioLine {
  int number = 0;  // in the file, from 1
  std::string text;
};

struct Scenario {
  std::string title;
  std::vector<ScenarioLine> lines;
};

// Reads a file of scenarios. Each begins with
//   scenario "what it shows"
// Between `for NAME in A B ...` and `end` the lines stand once for each value,
// with ${NAME} replaced; `for NAME in folders of PATH [except A B ...]` takes the
// names of the folders under a path of `dataFolder`, sorted. Loops may hold loops.
// Throws ScenarioError.
[[nodiscard]] std::vector<Scenario> ReadScenarios(const std::string& path,
                                                  const std::string& dataFolder);

}  // namespace tarnwick::testhost
