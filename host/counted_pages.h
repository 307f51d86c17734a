#pragma once
#include <cstddef>
#include <vector>

namespace tarnwick::testhost {

// This program brings its own AllocatePages and FreePages, which keep count and
// can fail; the library's stay unlinked.

// The `nth` request from now on fails, counting from 1, and all later ones too if
// `onwards`. 0: none.
void FailPageRequest(int nth, bool onwards);

// Blocks that were taken and not given back.
[[nodiscard]] std::vector<void*> LivePages();
// Blocks that were given back with a wrong size or twice; 0 from then on.
[[nodiscard]] std::size_t TakeWrongFrees();

}  // namespace tarnwick::testhost
