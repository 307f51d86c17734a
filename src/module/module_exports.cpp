// What the module shows to the outside; TarnikStudi.def gives the plain names.
#include <windows.h>

#include "dialog/main_dialog.h"
#include "dialog/module_windows.h"
#include "filter/plugin_main.h"

namespace {

tarnwick::ModuleWindows windows;

}  // namespace

extern "C" void PluginMain(std::int16_t selector, void* record, std::intptr_t* data,
                           std::int16_t* result) {
  tarnwick::SetFilterWindows(&windows);
  tarnwick::RunSelector(selector, record, data, result);
}

// The procedure of the main dialog, found by name too. Answers for the dialog that is
// open; without one it leaves all messages to the system's own handling.
extern "C" INT_PTR CALLBACK DissolveProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return tarnwick::MainDialogProc(window, message, wParam, lParam);
}
