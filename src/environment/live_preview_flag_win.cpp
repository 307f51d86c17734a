#include <windows.h>

#include "environment/live_preview_flag.h"

namespace tarnwick {
namespace {

constexpr char kKey[] = "SOFTWARE\\TWKstud\\Environment";
constexpr char kValue[] = "PickerLivePreview";

}  // namespace

bool LoadLivePreviewFlag() {
  HKEY key = nullptr;
  if (RegOpenKeyExA(HKEY_CURRENT_USER, kKey, 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
  BYTE flag = 0;
  DWORD bytes = sizeof flag;
  DWORD type = REG_NONE;
  const LSTATUS found = RegQueryValueExA(key, kValue, nullptr, &type, &flag, &bytes);
  RegCloseKey(key);
  return found == ERROR_SUCCESS && type == REG_BINARY && bytes == sizeof flag && flag == 1;
}

void SaveLivePreviewFlag(bool isOn) {
  HKEY key = nullptr;
  if (RegCreateKeyA(HKEY_CURRENT_USER, kKey, &key) != ERROR_SUCCESS) return;
  const BYTE flag = isOn ? 1 : 0;
  RegSetValueExA(key, kValue, 0, REG_BINARY, &flag, sizeof flag);
  RegCloseKey(key);
}

}  // namespace tarnwick
