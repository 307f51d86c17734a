// What the main dialog is told to do.
#include <windows.h>

#include <commctrl.h>

#include <cstring>

#include "controls/control_button.h"
#include "controls/control_classes.h"
#include "dialog/about_box.h"
#include "dialog/dialog_commands.h"
#include "dialog/hot_keys.h"
#include "dialog/main_dialog.h"
#include "dialog/models/help_pages.h"
#include "dialog/models/new_layer_options.h"

namespace tarnwick {
namespace {

bool IsEdit(HWND window) {
  char name[16] = "";
  return window != nullptr && GetClassNameA(window, name, sizeof name) != 0 &&
         std::strcmp(name, "Edit") == 0;
}

bool IsChecked(HWND box) {
  return SendMessageA(box, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

// The pointer has left the button for another program without its knowing.
void ClearHover(HWND window) {
  auto* const button = GetControlRecord<ControlButton>(window, kButtonClass);
  if (button == nullptr) return;
  button->state = kIdle;
  RedrawControl(window);
}

}  // namespace

INT_PTR MainDialog::Command(WPARAM wParam, LPARAM lParam) {
  const int id = LOWORD(wParam);
  const WORD notification = HIWORD(wParam);
  for (std::size_t i = 0; i < kNewLayerOptions.size(); ++i) {
    if (id == kNewLayerOptions[i].labelId) return ClickLabel(i), TRUE;
    if (id == kNewLayerOptions[i].boxId) return ClickBox(), TRUE;
  }
  if (id >= kViewComposite && id <= kDeleteWashOne) return ChooseInStrip(id), TRUE;
  if (id >= kResetAll && id <= kResetBackground) return ResetPressed(), TRUE;
  if (drawers_ && drawers_->Command(id, notification)) return TRUE;
  switch (id) {
    case IDOK:
      Ok(notification);
      break;
    case IDCANCEL:
      // The box in the title bar has no control to name.
      Cancel(lParam != 0);
      break;
    case kZoomIn:
    case kZoomOut:
    case kZoomToFit:
    case kZoomToFull:
      Zoom(id);
      break;
    case kPane:
      if (notification == kPanEnded) PanEnded();
      break;
    case kSettingsChanged:
    case kSettingsChangedToo:
      SettingsChanged();
      break;
    case kManual:
      if (help_) help_->OpenHelp(kHelpManual);
      break;
    case kViewAll:
      if (help_) help_->OpenExamples();
      ClearHover(Item(kViewAll));
      break;
    case kAuto:
      ThrowLook();
      break;
    case kAbout:
      ShowAboutDialog(instance_, window_, g_.folders, g_.ui.useSound);
      break;
    default:
      return FALSE;
  }
  return TRUE;
}

// Enter in a value field commits that field: the focus goes on.
void MainDialog::Ok(WORD notification) {
  if (notification != 0 || (drawers_ && drawers_->Accept())) return;
  const HWND focus = GetFocus();
  if (IsEdit(focus)) {
    PostMessageA(GetParent(focus), WM_NEXTDLGCTL, 0, 0);
  } else {
    EndDialog(window_, IDOK);
  }
}

// Escape closes a drawer first. In a value field it undoes the typing: its page knows
// how.
void MainDialog::Cancel(bool isByKey) {
  if (isByKey && drawers_ && drawers_->Cancel()) return;
  const HWND focus = GetFocus();
  if (IsEdit(focus)) {
    SendMessageA(GetParent(focus), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(focus), kEditCancelled),
                 reinterpret_cast<LPARAM>(focus));
    SetFocus(Item(IDOK));
    return;
  }
  *g_.gParams = cancelSnapshot_;
  EndDialog(window_, IDCANCEL);
}

void MainDialog::SettingsChanged() {
  EffectSettings& settings = *g_.gParams;
  if (settings.SnapshotHeld == 1) {
    settings.SnapshotHeld = 0;
  } else {
    lastUsedSnapshot_ = settings;
  }
  RefreshPreview();
}

void MainDialog::Zoom(int command) {
  // Hot keys come through a message box too, which a render that is under way may have
  // brought up: its buffers must not change below it.
  if (!preview_ || IsWindowEnabled(window_) == FALSE) return;
  const PaneSize pane = PaneNow();
  switch (command) {
    case kZoomIn:
      SetZoomButtons(preview_->ZoomIn(pane));
      break;
    case kZoomOut:
      SetZoomButtons(preview_->ZoomOut(pane));
      break;
    case kZoomToFit:
      SetZoomButtons(preview_->ZoomToFit(pane));
      break;
    default:
      SetZoomButtons(preview_->ZoomToFull(pane));
      break;
  }
  TakePan();
  PrintPercentage();
  RefreshPreview();
}

// Of the picture, or of a texture under it, which has rendered nothing yet.
void MainDialog::PanEnded() {
  if (pane_ != nullptr && preview_ && pane_->ctrlDrag == 0) {
    preview_->Pan(preview_->Zoom().panX - pane_->panX, preview_->Zoom().panY - pane_->panY);
    TakePan();
  }
  RefreshPreview();
}

void MainDialog::MoveOffset(int dx, int dy) {
  if (!preview_) return;
  const auto page = static_cast<EffectPage>(views_.currentTab);
  if (!preview_->MoveActiveOffset(page, views_.Current(), dx, dy)) return;
  if (pages_) pages_->ShowWashOffset();
  SendMessageA(window_, WM_COMMAND, MAKEWPARAM(kPane, kPanEnded), 0);
}

void MainDialog::ClickLabel(std::size_t option) {
  const bool isOn = !IsChecked(Item(kNewLayerOptions[option].boxId));
  SetNewLayerOption(*g_.gParams, option, isOn);
  ShowOptions();
  KeepKeysWithDrawer();
}

void MainDialog::ClickBox() {
  for (std::size_t i = 0; i < kNewLayerOptions.size(); ++i) {
    SetNewLayerOption(*g_.gParams, i, IsChecked(Item(kNewLayerOptions[i].boxId)));
  }
  if (g_.gParams->MaskLayerEffect != 0) SetNewLayerOption(*g_.gParams, kMaskOption, true);
  ShowOptions();
  KeepKeysWithDrawer();
}

// While one is open OK and Cancel are of no use, nor are Enter and Escape anywhere else.
bool MainDialog::KeepKeysWithDrawer() {
  return drawers_ && drawers_->TakeFocus();
}

// Boxes and labels as the settings are, those of the current page in sight.
void MainDialog::ShowOptions() {
  const EffectSettings& settings = *g_.gParams;
  for (std::size_t i = 0; i < kNewLayerOptions.size(); ++i) {
    const NewLayerOption& option = kNewLayerOptions[i];
    const bool isOn = settings.*option.field != 0;
    const bool isShown = option.tab == views_.currentTab && settings.BatchMode == 0;
    SendMessageA(Item(option.boxId), BM_SETCHECK, isOn ? BST_CHECKED : BST_UNCHECKED, 0);
    ShowWindow(Item(option.boxId), isShown ? SW_SHOW : SW_HIDE);
    TContaner* const label = optionLabels_[i];
    if (label == nullptr) continue;
    label->state = isOn ? kPressed : kIdle;
    ShowWindow(label->window, isShown ? SW_SHOW : SW_HIDE);
    RedrawControl(label->window);
  }
}

INT_PTR MainDialog::SystemCommand(WPARAM command) {
  // Its low digit tells a double click on the title.
  switch (command & 0xFFF0U) {
    case SC_MAXIMIZE:
    case SC_RESTORE:
      PostMessageA(window_, WM_EXITSIZEMOVE, 0, 0);
      return FALSE;
    case SC_CLOSE:
      PostMessageA(window_, WM_COMMAND, IDCANCEL, 0);
      return TRUE;
    default:
      return FALSE;
  }
}

void MainDialog::HotKey(WPARAM key) {
  const int command = CommandOfHotKey(key);
  const bool isButton = command == kZoomIn || command == kZoomOut;
  if (command == 0 || (isButton && IsWindowEnabled(Item(command)) == FALSE)) return;
  PostMessageA(window_, WM_COMMAND, static_cast<WPARAM>(command), 0);
}

void MainDialog::SelectTab() {
  const auto tab = static_cast<int>(SendMessageA(tabs_, TCM_GETCURSEL, 0, 0));
  if (tab < 0 || tab >= kTabs) return;
  views_.currentTab = static_cast<std::uint8_t>(tab);
  ShowEffectTabs();
  if (pages_) pages_->Select(tab, PagePlace());
  SendMessageA(window_, WM_COMMAND, kSettingsChanged, 0);
}

void MainDialog::SetZoomButtons(ZoomButtons buttons) {
  const HWND zoomIn = Item(kZoomIn);
  const HWND zoomOut = Item(kZoomOut);
  const HWND focus = GetFocus();
  const bool isOnZoom = focus != nullptr && (focus == zoomIn || focus == zoomOut);
  const bool isTaken = isOnZoom && KeepKeysWithDrawer();
  // A disabled control would keep the keys to itself, Enter and Escape among them.
  if (!isTaken && isOnZoom &&
      ((focus == zoomIn && !buttons.canZoomIn) || (focus == zoomOut && !buttons.canZoomOut))) {
    SendMessageA(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(IDOK)), TRUE);
  }
  EnableWindow(zoomIn, buttons.canZoomIn ? TRUE : FALSE);
  EnableWindow(zoomOut, buttons.canZoomOut ? TRUE : FALSE);
}

void MainDialog::PrintPercentage() {
  SetWindowTextA(Item(kPercentage), PercentageText(preview_->Zoom().viewScale).c_str());
}

// The pane draws what has been fetched, so its pan is the one that came of it.
void MainDialog::TakePan() {
  if (pane_ == nullptr) return;
  pane_->panX = preview_->Zoom().panX;
  pane_->panY = preview_->Zoom().panY;
}

void MainDialog::SetBusy(bool isBusy) {
  constexpr int kBusyItems[] = {IDOK, IDCANCEL, kTabControl, kManual, kViewAll, kAuto, kAbout};
  for (const int id : kBusyItems) EnableWindow(Item(id), isBusy ? FALSE : TRUE);
  effectTabs_.Enable(!isBusy);
  if (pages_) pages_->EnableWindowOfPage(!isBusy);
  if (!isBusy) ShowEffectTabs();
}

}  // namespace tarnwick
