#pragma once
#include "controls/color_swatch.h"
#include "host_interface/host_procs.h"

namespace tarnwick {

// The colour picker of a host that offers `services`; empty for null.
[[nodiscard]] HostPicker HostPickerOf(host::ColorServicesProc services);

}  // namespace tarnwick
