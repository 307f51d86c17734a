#pragma once
#include <cstdint>
#include <vector>

#include "base/thread_pool.h"

namespace tarnwick::content {

// Rounds samples to coarser steps where they lie among others so different that
// nobody sees it: to 2, 4 or 8 levels. What is smooth keeps every level. Packs a
// rough texture by a quarter smaller, since nothing else of it can be packed.
//
// `samples` are rows of `width`, 8-bit; white stays white and black black.
void CoarsenBusySteps(std::vector<std::uint8_t>& samples, int width, ThreadPool* pool);

}  // namespace tarnwick::content
