#pragma once
#include <string>

namespace tarnwick {

// The version resource, for "1.2.3". An exception for what is no such version.
[[nodiscard]] std::string VersionInfo(const std::string& version);

}  // namespace tarnwick
