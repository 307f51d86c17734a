#include "dialog/main_dialog.h"

#include <commctrl.h>

#include "controls/color_swatch.h"
#include "controls/control_classes.h"
#include "controls/control_shared.h"
#include "dialog/dialog_commands.h"
#include "dialog/host_picker.h"
#include "dialog/models/help_pages.h"
#include "environment/platform_calls.h"
#include "environment/ui_file.h"
#include "filter/module_handle.h"
#include "filter/suite_record.h"
#include "resources/dialog_ids.h"

namespace tarnwick {
namespace {

// The one that is open, or null.
MainDialog*& OpenDialog() {
  static MainDialog* dialog = nullptr;
  return dialog;
}

// What the controls share, as long as a dialog is there.
class ControlSession {
 public:
  ControlSession(HINSTANCE instance, const host::FilterRecord& record) : instance_(instance) {
    const INITCOMMONCONTROLSEX common = {
        sizeof common, ICC_BAR_CLASSES | ICC_UPDOWN_CLASS | ICC_TAB_CLASSES | ICC_PROGRESS_CLASS};
    InitCommonControlsEx(&common);
    MakeSharedControls(instance);
    SetPreviewProc(PreviewPaneProc);
    ColorPickers().host = HostPickerOf(record.colorServices);
    // A class that cannot be registered leaves its controls out, and no more.
    (void)RegisterControlClasses(instance);
  }
  ~ControlSession() {
    UnregisterControlClasses(instance_);
    FreeSharedControls();
    ColorPickers() = {};
  }
  ControlSession(const ControlSession&) = delete;
  ControlSession& operator=(const ControlSession&) = delete;

 private:
  HINSTANCE instance_;
};

// Boxes that come up meanwhile belong to the dialog, not to the window below it.
class OwnerBack {
 public:
  explicit OwnerBack(FilterGlobals& g) : g_(g), owner_(g.ownerWindow) {}
  ~OwnerBack() { g_.ownerWindow = owner_; }
  OwnerBack(const OwnerBack&) = delete;
  OwnerBack& operator=(const OwnerBack&) = delete;

 private:
  FilterGlobals& g_;
  void* owner_;
};

// A host that cannot tell the handle gets its dialog all the same.
HINSTANCE ModuleInstance(FilterGlobals& g) {
  try {
    return static_cast<HINSTANCE>(GetModuleHandleFor(g, g.gFilterRecord->plugInRef));
  } catch (const HostServiceMissing&) {
    return static_cast<HINSTANCE>(OwnModuleHandle());
  }
}

}  // namespace

MainDialog::MainDialog(FilterGlobals& g) : g_(g), dice_(GetTickCount()) {}

INT_PTR MainDialog::Run(HINSTANCE instance, HWND owner) {
  instance_ = instance;
  OpenDialog() = this;
  const INT_PTR result = DialogBoxParamA(instance, TARNWICK_MAIN_DIALOG, owner, MainDialogProc, 0);
  OpenDialog() = nullptr;
  if (fault_) std::rethrow_exception(fault_);
  return result;
}

INT_PTR MainDialog::Answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  window_ = window;
  try {
    return Dispatch(message, wParam, lParam);
  } catch (...) {
    Fail();
    return FALSE;
  }
}

void MainDialog::Fail() {
  fault_ = std::current_exception();
  EndDialog(window_, IDCANCEL);
}

INT_PTR MainDialog::Dispatch(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG:
      Start();
      return TRUE;
    case WM_DESTROY:
      Finish();
      return TRUE;
    case WM_SIZE:
      if (wParam != SIZE_MINIMIZED) Place();
      return TRUE;
    case WM_EXITSIZEMOVE:
      Resized();
      return TRUE;
    case WM_GETMINMAXINFO:
      return LimitTrackSize(lParam);
    case WM_PAINT:
      Paint();
      return TRUE;
    case WM_ERASEBKGND:
      return Erase(reinterpret_cast<HDC>(wParam));
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSCROLLBAR:
      return reinterpret_cast<INT_PTR>(SharedControls().faceBrush);
    case WM_CTLCOLORSTATIC:
      return ColorStatic(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam));
    case WM_SHOWWINDOW:
      ShowPaneImage();
      return TRUE;
    case WM_NOTIFY: {
      const auto* const note = reinterpret_cast<const NMHDR*>(lParam);
      if (note->idFrom != kTabControl || note->code != TCN_SELCHANGE) return FALSE;
      SelectTab();
      return TRUE;
    }
    case WM_HELP:
      if (help_) help_->OpenHelp(kHelpFirstTab + views_.currentTab);
      return TRUE;
    case WM_SYSCOMMAND:
      return SystemCommand(wParam);
    case WM_TIMER:
      return Timer(wParam) ? TRUE : FALSE;
    case WM_HOTKEY:
      HotKey(wParam);
      return TRUE;
    case WM_CLOSE:
      // The box in the title bar has come as a system command.
      return TRUE;
    case WM_COMMAND:
      return Command(wParam, lParam);
    default:
      return FALSE;
  }
}

INT_PTR CALLBACK MainDialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  MainDialog* const dialog = OpenDialog();
  return dialog != nullptr ? dialog->Answer(window, message, wParam, lParam) : FALSE;
}

void MainDialog::Bar::Report(int done, int total) {
  if (window == nullptr) return;
  SendMessageA(window, PBM_SETPOS, static_cast<WPARAM>(total > 0 ? done : 0), 0);
  UpdateWindow(window);
}

bool RunMainDialog(FilterGlobals& g) {
  const HINSTANCE instance = ModuleInstance(g);
  bool accepted = false;
  {
    const OwnerBack back(g);
    const ControlSession controls(instance, *g.gFilterRecord);
    MainDialog dialog(g);
    accepted = dialog.Run(instance, static_cast<HWND>(g.ownerWindow)) == IDOK;
    // Without a folder of its own it would fall into whatever the host stands in.
    if (!g.folders.modulePath.empty()) {
      SaveUiFile(g.folders.modulePath + kUiFileName, *g.gParams, g.ui);
    }
  }
  return accepted;
}

}  // namespace tarnwick
