#pragma once
#include <filesystem>
#include <string>
#include <string_view>

namespace tarnwick {

// File names as 8-bit text. Settings, lists and folders hold them in the bytes that
// the platform's own 8-bit calls take: on Windows those of the system's code page,
// elsewhere whatever the file system has.
//
// The standard library reads such text as UTF-8 on Windows and throws at a letter
// that it finds broken, so whatever is to become a path, or came from one, passes
// through here. Nothing is thrown but for want of memory: a letter that the code page
// lacks comes back as the nearest one it has, or as "?", which names no file.
[[nodiscard]] std::filesystem::path PathOfName(std::string_view name);
[[nodiscard]] std::string NameOfPath(const std::filesystem::path& path);

}  // namespace tarnwick
