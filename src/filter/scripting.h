#pragma once
#include "filter/filter_globals.h"

namespace tarnwick {

// The settings' ways into and out of the host: the recorded descriptor of a step
// and the registry of the settings used last. Errors are the host's; 0 is none.

// Overlays the settings with what the recorded descriptor holds and disposes of
// it. A key that is missing leaves its field; an error ends the reading, and the
// fields done so far stay. `displayDialog` tells whether the host wants the
// dialog; without a descriptor it is what the last parameters selector asked for.
[[nodiscard]] host::OSErr ReadScriptParameters(FilterGlobals& g, bool& displayDialog);

// Records all settings as a step whose dialog can be turned on.
host::OSErr WriteScriptParameters(FilterGlobals& g);

// The settings used last; nothing happens without them, or without suites.
void ReadRegistryParameters(FilterGlobals& g);
std::int32_t WriteRegistryParameters(FilterGlobals& g);

}  // namespace tarnwick
