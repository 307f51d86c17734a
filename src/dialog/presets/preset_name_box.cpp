#include "dialog/presets/preset_name_box.h"

#include <array>

#include "dialog/models/preset_lists.h"
#include "resources/preset_dialog_ids.h"

namespace tarnwick {
namespace {

constexpr int kLongestName = 255;

// A plain array: nothing may be thrown through the system.
using NameText = std::array<char, kLongestName + 1>;

void EnableSave(HWND box) {
  const bool isNamed = GetWindowTextLengthA(GetDlgItem(box, TARNWICK_PRESET_NAME)) > 0;
  EnableWindow(GetDlgItem(box, IDOK), isNamed ? TRUE : FALSE);
}

INT_PTR CALLBACK NameProc(HWND box, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: {
      SetWindowLongPtrA(box, DWLP_USER, lParam);
      const HWND edit = GetDlgItem(box, TARNWICK_PRESET_NAME);
      SendMessageA(edit, EM_LIMITTEXT, kLongestName, 0);
      SetWindowTextA(edit, reinterpret_cast<const NameText*>(lParam)->data());
      SendMessageA(edit, EM_SETSEL, 0, -1);
      EnableSave(box);
      SetFocus(edit);
      return FALSE;  // it has been set
    }
    case WM_COMMAND:
      if (LOWORD(wParam) == TARNWICK_PRESET_NAME && HIWORD(wParam) == EN_CHANGE) {
        EnableSave(box);
      } else if (LOWORD(wParam) == IDOK) {
        auto* const name = reinterpret_cast<NameText*>(GetWindowLongPtrA(box, DWLP_USER));
        // Enter comes here whether or not the button can be used.
        if (IsWindowEnabled(GetDlgItem(box, IDOK)) == FALSE) return TRUE;
        GetDlgItemTextA(box, TARNWICK_PRESET_NAME, name->data(), static_cast<int>(name->size()));
        EndDialog(box, IDOK);
      } else if (LOWORD(wParam) == IDCANCEL) {
        EndDialog(box, IDCANCEL);
      }
      return TRUE;
    default:
      return FALSE;
  }
}

bool AskOnce(HINSTANCE instance, HWND owner, std::string& name) {
  NameText text{};
  name.copy(text.data(), kLongestName);
  const INT_PTR answer = DialogBoxParamA(instance, MAKEINTRESOURCEA(TARNWICK_SAVE_PRESET_BOX),
                                         owner, NameProc, reinterpret_cast<LPARAM>(&text));
  name = text.data();
  return answer == IDOK;
}

bool Exists(const std::string& file) {
  return GetFileAttributesA(file.c_str()) != INVALID_FILE_ATTRIBUTES;
}

}  // namespace

NameAnswer AskPresetName(HINSTANCE instance, HWND owner, std::string& name,
                         const std::function<std::string(std::string_view)>& fileOf) {
  while (AskOnce(instance, owner, name) && !name.empty()) {
    name = PresetNameOf(name);
    if (!Exists(fileOf(name))) return NameAnswer::kNew;
    const int answer = MessageBoxA(owner, "The file already exist!\n Do you want rewrite it?",
                                   "File Save Warning", MB_YESNOCANCEL | MB_ICONWARNING);
    if (answer == IDYES) return NameAnswer::kOverwrite;
    if (answer != IDNO) break;
  }
  return NameAnswer::kCancelled;
}

}  // namespace tarnwick
