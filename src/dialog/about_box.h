#pragma once
#include <windows.h>

namespace tarnwick {

// The modal box with the product's name, version and licence. `module` holds its
// template; `owner` may be null. Returns when the user has closed it.
void ShowAboutDialog(HINSTANCE module, HWND owner);

}  // namespace tarnwick
