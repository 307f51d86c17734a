#include <windows.h>

#include <cstdio>
#include <vector>

#include "environment/platform_calls.h"

namespace tarnwick {
namespace {

// The module that this code lies in, whatever program has loaded it.
HMODULE OwnModule() {
  HMODULE module = nullptr;
  GetModuleHandleExA(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<LPCSTR>(&OwnModule), &module);
  return module;
}

}  // namespace

void ShowWarningBox(const std::string& text) {
  MessageBoxA(nullptr, text.c_str(), "", MB_OK | MB_ICONWARNING);
}

void ShowAlertBox(const std::string& text, void* ownerWindow) {
  MessageBoxA(static_cast<HWND>(ownerWindow), text.c_str(), "Plugins Alert",
              MB_OK | MB_ICONINFORMATION);
}

std::string ModuleFileName() {
  std::vector<char> name(1024);
  const DWORD length =
      GetModuleFileNameA(OwnModule(), name.data(), static_cast<DWORD>(name.size()));
  if (length == 0 || length >= name.size()) return {};
  return {name.data(), length};
}

void* OwnModuleHandle() {
  return OwnModule();
}

void WriteComplaint(const std::string& text) {
  std::fputs(text.c_str(), stderr);
}

}  // namespace tarnwick
