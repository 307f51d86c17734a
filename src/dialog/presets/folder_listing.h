#pragma once
#include <string>
#include <vector>

#include "dialog/models/preset_lists.h"

namespace tarnwick {

// All that a folder holds, "." and ".." too, in the system's order. Nothing of one that
// cannot be read. `folder` ends in a separator.
[[nodiscard]] std::vector<FolderEntry> ListFolder(const std::string& folder);

}  // namespace tarnwick
