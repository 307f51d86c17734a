#pragma once
#include <string>

namespace tarnwick {

// The module's file, which the program is told on its command line.
inline std::string& ModulePath() {
  static std::string path;
  return path;
}

}  // namespace tarnwick
