#include "base/native_path.h"

namespace tarnwick {

std::filesystem::path PathOfName(std::string_view name) {
  return name;
}

std::string NameOfPath(const std::filesystem::path& path) {
  return path.string();
}

}  // namespace tarnwick
