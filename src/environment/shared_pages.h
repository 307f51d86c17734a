#pragma once
#include <cstddef>

namespace tarnwick {

// One block of memory for the life of the process, zeroed when new. A module
// that is unloaded and loaded again in the same process finds the same block.
// The first size counts; null without memory.
[[nodiscard]] void* ProcessPages(std::size_t bytes);

}  // namespace tarnwick
