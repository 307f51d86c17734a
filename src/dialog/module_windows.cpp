#include "dialog/module_windows.h"

#include "dialog/about_box.h"
#include "dialog/main_dialog.h"
#include "environment/platform_calls.h"

namespace tarnwick {

bool ModuleWindows::ShowMainDialog(FilterGlobals& g) {
  return RunMainDialog(g);
}

void ModuleWindows::ShowAboutBox(FilterGlobals& g) {
  // Not through the access suite: this much works in every host.
  ShowAboutDialog(static_cast<HINSTANCE>(OwnModuleHandle()), static_cast<HWND>(g.ownerWindow));
}

}  // namespace tarnwick
