#include "dialog/picker/texture_picker.h"

#include "controls/control_classes.h"
#include "controls/control_shared.h"
#include "controls/object_controls.h"
#include "dialog/models/picker_pages.h"
#include "dialog/picker/picker_dialog.h"
#include "resources/picker_dialog_ids.h"

namespace tarnwick {
namespace {

// The class of the picker's controls, as long as one is open.
class PickerClass {
 public:
  explicit PickerClass(HINSTANCE instance) : instance_(instance) {
    WNDCLASSA definition{};
    definition.lpfnWndProc = PickerProc;
    definition.cbWndExtra = sizeof(LONG_PTR);
    definition.hInstance = instance;
    definition.hCursor = LoadCursorA(nullptr, MAKEINTRESOURCEA(32512));  // the arrow
    definition.hbrBackground = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
    definition.lpszClassName = kPickerClass;
    // Without it the window comes up without its cells.
    RegisterClassA(&definition);
  }
  ~PickerClass() { UnregisterClassA(kPickerClass, instance_); }
  PickerClass(const PickerClass&) = delete;
  PickerClass& operator=(const PickerClass&) = delete;

 private:
  HINSTANCE instance_;
};

INT_PTR CALLBACK PickerDialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    if (lParam == 0) {
      MessageBoxA(window, "CurPicker=NULL!", "Plugins Alert", MB_OK);
      EndDialog(window, IDCANCEL);
      return TRUE;
    }
    SetWindowLongPtrA(window, DWLP_USER, lParam);
  }
  auto* const dialog = reinterpret_cast<PickerDialog*>(GetWindowLongPtrA(window, DWLP_USER));
  return dialog != nullptr ? dialog->Answer(window, message, wParam, lParam) : FALSE;
}

bool RunDialog(HWND parent, PickerDialog* dialog) {
  return DialogBoxParamA(SharedControls().instance, MAKEINTRESOURCEA(TARNWICK_TEXTURE_PICKER),
                         parent, PickerDialogProc, reinterpret_cast<LPARAM>(dialog)) > 0;
}

}  // namespace

bool OpenTexturePicker(const char* selectedName, HWND parent, TPicker* catalogue) {
  const PickerClass controls(SharedControls().instance);
  if (catalogue == nullptr) return RunDialog(parent, nullptr);
  catalogue->isAccepted = false;
  PickerPages pages(*catalogue, catalogue->sets);
  pages.Open(selectedName);
  PickerDialog dialog(*catalogue, pages);
  return RunDialog(parent, &dialog);
}

}  // namespace tarnwick
