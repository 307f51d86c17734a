#pragma once
#include <cstdint>

namespace tarnwick {

// What the exported entry point does: runs the handler of `selector` on the
// host's record (the about record for selector 0), with an error for the host in
// `result`. No exception leaves it, and the processor's floating-point state is
// the host's again when it returns. `data` is the slot for the module's block.
void RunSelector(std::int16_t selector, void* record, std::intptr_t* data, std::int16_t* result);

}  // namespace tarnwick
