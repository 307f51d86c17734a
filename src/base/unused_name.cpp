#include "base/unused_name.h"

#include <random>
#include <string>
#include <system_error>

namespace tarnwick {

std::filesystem::path UnusedNameBeside(const std::filesystem::path& path) {
  std::random_device random;
  std::filesystem::path name;
  std::error_code error;
  do {
    name = path;
    name += "." + std::to_string(random()) + ".new";
  } while (std::filesystem::exists(std::filesystem::symlink_status(name, error)));
  return name;
}

}  // namespace tarnwick
