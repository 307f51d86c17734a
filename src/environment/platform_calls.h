#pragma once
#include <cstdint>
#include <string>

namespace tarnwick {

// The few things that the filter asks of the platform it runs on. One
// implementation for Windows, one for everything else, where a test host may
// put its own in their place by linking it first.

// A warning without an owner and with an empty caption, an OK button and a
// warning icon. Returns when the user has seen it.
void ShowWarningBox(const std::string& text);

// "Plugins Alert" with an information icon, owned by `ownerWindow` (may be null).
void ShowAlertBox(const std::string& text, void* ownerWindow);

// The full name of this module's own file; empty if it cannot be told.
[[nodiscard]] std::string ModuleFileName();

// The platform's handle of this module; null if it cannot be told.
[[nodiscard]] void* OwnModuleHandle();

// A line for whoever watches the standard error stream.
void WriteComplaint(const std::string& text);

}  // namespace tarnwick
