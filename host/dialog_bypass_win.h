#pragma once
#include <windows.h>

namespace tarnwick::testhost {

// Whether the module's own dialog shows. While it does not, its call of the system's
// DialogBoxParamA for it returns at once, as after OK; other dialogs show.
void BypassOwnDialog(bool isBypassed);

// Puts us between a loaded module and that call.
void WatchDialogCalls(HMODULE module);

}  // namespace tarnwick::testhost
