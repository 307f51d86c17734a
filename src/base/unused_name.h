#pragma once
#include <filesystem>

namespace tarnwick {

// A name beside `path` that no file has, for what is written whole before it takes
// the place of the old one. Two writers at once get different ones.
[[nodiscard]] std::filesystem::path UnusedNameBeside(const std::filesystem::path& path);

}  // namespace tarnwick
