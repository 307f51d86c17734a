#pragma once
#include <windows.h>

#include <functional>
#include <string>
#include <string_view>

namespace tarnwick {

enum class NameAnswer : int { kCancelled = 0, kNew = 1, kOverwrite = 2 };

// Asks for the name of a preset to be saved, over and over while the user does not
// want to overwrite the one that bears the name already. The box starts with `name`,
// which is what was typed in the end, without an extension; at most 255 bytes are read.
//
// `instance` holds the box's template; `owner` may be null. `fileOf` tells the file
// whose existence is the question.
[[nodiscard]] NameAnswer AskPresetName(HINSTANCE instance, HWND owner, std::string& name,
                                       const std::function<std::string(std::string_view)>& fileOf);

}  // namespace tarnwick
