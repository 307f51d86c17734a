#pragma once
#include <string>

namespace tarnwick {

// `folder`, the platform's separator and `name`. Layers keep the whole path and
// are compared by it, exactly and by case.
[[nodiscard]] inline std::string TexturePath(const std::string& folder, const std::string& name) {
#ifdef _WIN32
  return folder + "\\" + name;
#else
  return folder + "/" + name;
#endif
}

}  // namespace tarnwick
