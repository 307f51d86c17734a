#pragma once
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick::testhost {

// What a run has done besides pixels.
struct HostLog {
  std::vector<std::string> boxes;       // texts of message boxes
  std::vector<std::string> complaints;  // lines for the standard error stream
  std::vector<std::string> faults;      // rules of the interface that were broken
  std::vector<std::int16_t> selectors;  // that were called
  std::vector<std::pair<int, int>> progress;
  std::vector<std::string> pickers;  // "PROMPT RED GREEN BLUE" of each that was opened
  int advances = 0;
  int dialogsShown = 0;
  int aboutsShown = 0;
};

}  // namespace tarnwick::testhost
