#pragma once
#include "filter/filter_globals.h"

namespace tarnwick {

// The platform's handle of this module, for its resources and windows. Given the
// host's reference of the module, it is asked for through the access suite and
// kept; given null, it is what was kept, or else what the platform says of the
// code itself, as small hosts have no access suite. Null if nobody knows.
// Throws HostServiceMissing when a reference is given and the suite is not there.
[[nodiscard]] void* GetModuleHandleFor(FilterGlobals& g, host::SPPlugin* pluginRef);

}  // namespace tarnwick
