#include "dialog/module_windows.h"

#include "dialog/about_box.h"
#include "dialog/main_dialog.h"
#include "environment/platform_calls.h"
#include "environment/ui_file.h"

namespace tarnwick {

bool ModuleWindows::ShowMainDialog(FilterGlobals& g) {
  return RunMainDialog(g);
}

// Outside of a run nothing has read the file, and nothing will write it. The settings
// are not there either; the window's place goes from the file and back to it.
void ModuleWindows::ShowAboutBox(FilterGlobals& g) {
  const std::string file = g.folders.modulePath + kUiFileName;
  EffectSettings settings;
  SettingsSession session;
  InitSettingsToDefaults(settings, session);
  // Without a folder of its own it would be whatever the host stands in.
  const bool isKnown = !g.folders.modulePath.empty();
  if (isKnown) LoadUiFile(file, settings, g.ui);
  const std::int32_t before = g.ui.useSound;
  // Not through the access suite: this much works in every host.
  ShowAboutDialog(static_cast<HINSTANCE>(OwnModuleHandle()), static_cast<HWND>(g.ownerWindow),
                  g.folders, g.ui.useSound);
  if (isKnown && g.ui.useSound != before) SaveUiFile(file, settings, g.ui);
}

}  // namespace tarnwick
