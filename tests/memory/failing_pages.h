#pragma once
#include <cstddef>

namespace tarnwick::testing {

// This program brings its own AllocatePages and FreePages, which can fail and
// keep count; the library's stay unlinked.

// The `nth` allocation from now on fails, counting from 1, and all later ones
// too if `andAllAfter`. 0: none.
void FailAllocation(int nth, bool andAllAfter);

// How many allocations were asked for since.
[[nodiscard]] int AllocationsAskedFor();

// Blocks that are not given back, or were with a wrong size or twice.
[[nodiscard]] std::size_t FaultyBlocks();

}  // namespace tarnwick::testing
