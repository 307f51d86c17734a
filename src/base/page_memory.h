#pragma once
#include <cstddef>

namespace tarnwick {

// Whole pages straight from the system, read-write and all zero. Null when the
// system has no more, or for a size of 0. Safe from any thread.
[[nodiscard]] void* AllocatePages(std::size_t bytes);

// Gives back what AllocatePages gave, with the same size. Null is allowed.
void FreePages(void* pages, std::size_t bytes);

}  // namespace tarnwick
