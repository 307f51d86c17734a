#include "dialog/module_windows.h"

#include "dialog/about_box.h"
#include "environment/platform_calls.h"

namespace tarnwick {

bool ModuleWindows::ShowMainDialog(FilterGlobals&) {
  return true;
}

void ModuleWindows::ShowAboutBox(FilterGlobals& g) {
  // No reference comes with the about selector, so the platform is asked.
  ShowAboutDialog(static_cast<HINSTANCE>(OwnModuleHandle()), static_cast<HWND>(g.ownerWindow));
}

}  // namespace tarnwick
