#pragma once
#include <windows.h>

#include <cstdint>

#include "environment/folders.h"

namespace tarnwick {

// The modal box with the product's name, version and licence, links to the files that
// come with it, and the button that turns the sound of Auto off and on. `module` holds
// its template; `owner` may be null. Returns when the user has closed it.
//
// `useSound` is changed at once by its button; to keep that is the caller's.
void ShowAboutDialog(HINSTANCE module, HWND owner, const Folders& folders, std::int32_t& useSound);

}  // namespace tarnwick
