// The Auto button: all settings by chance.
#include <ctime>

#include "dialog/dialog_commands.h"
#include "dialog/main_dialog.h"
#include "dialog/sound.h"

namespace tarnwick {
namespace {

std::uint32_t Seconds() {
  return static_cast<std::uint32_t>(std::time(nullptr));
}

}  // namespace

void MainDialog::ThrowLook() {
  if (g_.ui.useSound != 0) {
    hasPlayed_ = true;
    PlaySoundResource(instance_, kAutoSound);
  }
  // A field that still waits for its timer would write into the new look.
  if (pages_) pages_->FinishSpins();
  const AutoThrow thrown = AutoRandomize(
      AutoLibraryOf(g_.folders.presetFolder, drawerLists_, Seconds), *g_.gParams, PresetsOf(g_));
  if (drawers_) {
    drawers_->NameColors(thrown.surfaceColors);
    drawers_->NameColors(thrown.backgroundColors);
  }
  if (preview_) preview_->RemakeLayers({});
  // First: what a page enables, and which effects are in use, hangs on the view.
  SyncStrip();
  UpdatePage(PageUpdate::kShowSettings);
  ShowOptions();
  SendMessageA(window_, WM_COMMAND, kSettingsChanged, 0);
}

}  // namespace tarnwick
