#include <string>
#include <vector>

#include "command.h"

int main(int count, char** words) {
  const std::vector<std::string> arguments(words + (count > 0 ? 1 : 0), words + count);
  return static_cast<int>(tarnwick::RunTarnwick(arguments));
}
