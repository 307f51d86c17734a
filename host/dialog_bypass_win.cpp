#include "host/dialog_bypass_win.h"

#include <cstring>

#include "resources/dialog_ids.h"

namespace tarnwick::testhost {
namespace {

bool& IsBypassed() {
  static bool isBypassed = true;
  return isBypassed;
}

INT_PTR WINAPI AnswerDialog(HINSTANCE instance, LPCSTR name, HWND owner, DLGPROC procedure,
                            LPARAM detail) {
  const bool isOwn = !IS_INTRESOURCE(name) && std::strcmp(name, TARNWICK_MAIN_DIALOG) == 0;
  if (isOwn && IsBypassed()) return IDOK;
  return DialogBoxParamA(instance, name, owner, procedure, detail);
}

// Where the loader has put the address of an imported procedure.
void** FindImport(char* base, const char* name) {
  const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
  const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
  const DWORD place =
      headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
  for (auto* from = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + place); from->Name != 0;
       ++from) {
    const auto* names = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + from->OriginalFirstThunk);
    auto* slots = reinterpret_cast<void**>(base + from->FirstThunk);
    for (; names->u1.AddressOfData != 0; ++names, ++slots) {
      if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
      const auto* const entry =
          reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData);
      if (std::strcmp(reinterpret_cast<const char*>(entry->Name), name) == 0) return slots;
    }
  }
  return nullptr;
}

}  // namespace

void BypassOwnDialog(bool isBypassed) {
  IsBypassed() = isBypassed;
}

void WatchDialogCalls(HMODULE module) {
  void** const slot = FindImport(reinterpret_cast<char*>(module), "DialogBoxParamA");
  DWORD previous = 0;
  if (slot == nullptr || VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &previous) == FALSE) {
    return;
  }
  *slot = reinterpret_cast<void*>(AnswerDialog);
  VirtualProtect(slot, sizeof *slot, previous, &previous);
}

}  // namespace tarnwick::testhost
