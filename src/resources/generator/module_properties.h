#pragma once
#include "resources/generator/resource_block.h"

namespace tarnwick {

// Processors that the module is built for; each has its own key for the name of
// the entry point.
enum class Processor { kI686, kAmd64 };

// The list of properties by which a host finds the filter, its place in the menu
// and the pictures it can work on, without loading it.
[[nodiscard]] ResourceBlock ModuleProperties(Processor processor);

}  // namespace tarnwick
