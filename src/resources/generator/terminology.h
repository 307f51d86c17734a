#pragma once
#include "resources/generator/resource_block.h"

namespace tarnwick {

// The words in which a host shows a recorded step: the one event of the filter
// and its parameters.
[[nodiscard]] ResourceBlock ScriptTerminology();

}  // namespace tarnwick
