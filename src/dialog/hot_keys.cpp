#include "dialog/hot_keys.h"

#include "dialog/dialog_commands.h"

namespace tarnwick {
namespace {

struct HotKey {
  int id;
  UINT key;
  int command;
};

// All with CTRL.
constexpr HotKey kHotKeys[] = {
    {1, VK_ADD, kZoomIn}, {2, VK_SUBTRACT, kZoomOut}, {3, '0', kZoomToFit}, {4, '1', kZoomToFull}};

}  // namespace

void RegisterHotKeys(HWND dialog) {
  for (const HotKey& key : kHotKeys) RegisterHotKey(dialog, key.id, MOD_CONTROL, key.key);
}

void UnregisterHotKeys(HWND dialog) {
  for (const HotKey& key : kHotKeys) UnregisterHotKey(dialog, key.id);
}

int CommandOfHotKey(WPARAM key) {
  for (const HotKey& entry : kHotKeys) {
    if (static_cast<WPARAM>(entry.id) == key) return entry.command;
  }
  return 0;
}

}  // namespace tarnwick
