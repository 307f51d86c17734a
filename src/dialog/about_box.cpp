#include "dialog/about_box.h"

#include <commctrl.h>

#include <memory>
#include <string>

#include "controls/control_classes.h"
#include "controls/control_shared.h"
#include "controls/tool_tip.h"
#include "dialog/help_viewer.h"
#include "dialog/models/help_pages.h"
#include "resources/art_ids.h"
#include "resources/dialog_ids.h"

namespace tarnwick {
namespace {

constexpr char kTermsFile[] = "LICENSE.txt";  // beside the module, as it is installed

// The classes of its controls, where no dialog below has brought them.
class LinkClasses {
 public:
  explicit LinkClasses(HINSTANCE module) : module_(module) {
    WNDCLASSA known{};
    if (GetClassInfoA(module, kLinkClass, &known) != FALSE) return;
    const INITCOMMONCONTROLSEX common = {sizeof common, ICC_BAR_CLASSES};
    InitCommonControlsEx(&common);
    MakeSharedControls(module);
    (void)RegisterControlClasses(module);
    isOurs_ = true;
  }
  ~LinkClasses() {
    if (!isOurs_) return;
    UnregisterControlClasses(module_);
    FreeSharedControls();
  }
  LinkClasses(const LinkClasses&) = delete;
  LinkClasses& operator=(const LinkClasses&) = delete;

 private:
  HINSTANCE module_;
  bool isOurs_ = false;
};

class AboutBox {
 public:
  AboutBox(HINSTANCE module, const Folders& folders, std::int32_t& useSound)
      : module_(module), folders_(folders), useSound_(useSound) {}
  ~AboutBox() {
    if (heading_ != nullptr) DeleteObject(heading_);
    if (icon_ != nullptr) DestroyIcon(icon_);
  }
  AboutBox(const AboutBox&) = delete;
  AboutBox& operator=(const AboutBox&) = delete;

  void Show(HWND owner) {
    DialogBoxParamA(module_, MAKEINTRESOURCEA(TARNWICK_ABOUT_BOX), owner, Proc,
                    reinterpret_cast<LPARAM>(this));
  }

 private:
  static INT_PTR CALLBACK Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) SetWindowLongPtrA(window, DWLP_USER, lParam);
    auto* const box = reinterpret_cast<AboutBox*>(GetWindowLongPtrA(window, DWLP_USER));
    if (box == nullptr) return FALSE;
    // Nothing may pass through the system. What is thrown for want of memory leaves
    // something out.
    try {
      return box->Answer(window, message, LOWORD(wParam));
    } catch (...) {
      return FALSE;
    }
  }

  INT_PTR Answer(HWND window, UINT message, int command) {
    switch (message) {
      case WM_INITDIALOG:
        Start(window);
        return FALSE;  // the focus is where it should be
      case WM_COMMAND:
        Command(window, command);
        return TRUE;
      case WM_DESTROY:
        help_.reset();
        return TRUE;
      default:
        return FALSE;
    }
  }

  void Start(HWND window) {
    SetDlgItemTextA(window, TARNWICK_ABOUT_VERSION, "Version " TARNWICK_VERSION);
    ShowHeading(window);
    ShowIcon(window);
    ShowSound(window);
    AddToolTip(GetDlgItem(window, TARNWICK_ABOUT_SOUND), "Use sound for Auto button", nullptr);
    help_ = std::make_unique<HelpViewer>(window, folders_.helpFolder);
    for (const int id : {TARNWICK_ABOUT_MANUAL, TARNWICK_ABOUT_EXAMPLES, TARNWICK_ABOUT_TERMS}) {
      const HWND link = GetDlgItem(window, id);
      const bool isThere = GetFileAttributesA(FileOf(id).c_str()) != INVALID_FILE_ATTRIBUTES;
      if (link != nullptr && !isThere) ShowWindow(link, SW_HIDE);
    }
    SetFocus(GetDlgItem(window, IDOK));
  }

  // The product's name stands out: the box's own font, half as large again and bold.
  void ShowHeading(HWND window) {
    LOGFONTA font{};
    const auto own = reinterpret_cast<HFONT>(SendMessageA(window, WM_GETFONT, 0, 0));
    if (own == nullptr || GetObjectA(own, sizeof font, &font) == 0) return;
    font.lfHeight = font.lfHeight * 3 / 2;
    font.lfWidth = 0;
    font.lfWeight = FW_BOLD;
    heading_ = CreateFontIndirectA(&font);
    SendDlgItemMessageA(window, TARNWICK_ABOUT_NAME, WM_SETFONT, reinterpret_cast<WPARAM>(heading_),
                        TRUE);
  }

  // As large as its place, which grows with the font.
  void ShowIcon(HWND window) {
    RECT place = {0, 0, 32, 30};
    MapDialogRect(window, &place);
    icon_ = static_cast<HICON>(LoadImageA(module_, MAKEINTRESOURCEA(TARNWICK_ART_MODULE_ICON),
                                          IMAGE_ICON, place.bottom, place.bottom, 0));
    SendDlgItemMessageA(window, TARNWICK_ABOUT_ICON, STM_SETICON, reinterpret_cast<WPARAM>(icon_),
                        0);
  }

  void ShowSound(HWND window) const {
    SetDlgItemTextA(window, TARNWICK_ABOUT_SOUND, useSound_ != 0 ? "Disable SFX" : "Enable SFX");
  }

  // Empty where the module's folder is not known.
  [[nodiscard]] std::string FileOf(int link) const {
    if (folders_.modulePath.empty()) return {};
    switch (link) {
      case TARNWICK_ABOUT_MANUAL:
        return folders_.helpFolder + HelpPageOf(kHelpManual);
      case TARNWICK_ABOUT_EXAMPLES:
        return folders_.helpFolder + kExamplesPage;
      default:
        return folders_.modulePath + kTermsFile;
    }
  }

  void Command(HWND window, int command) {
    switch (command) {
      case IDOK:
      case IDCANCEL:
        EndDialog(window, command);
        break;
      case TARNWICK_ABOUT_SOUND:
        useSound_ = useSound_ != 0 ? 0 : 1;
        ShowSound(window);
        break;
      case TARNWICK_ABOUT_MANUAL:
      case TARNWICK_ABOUT_EXAMPLES:
      case TARNWICK_ABOUT_TERMS:
        if (help_) help_->OpenFile(FileOf(command));
        break;
      default:
        break;
    }
  }

  HINSTANCE module_;
  const Folders& folders_;
  std::int32_t& useSound_;
  std::unique_ptr<HelpViewer> help_;
  HFONT heading_ = nullptr;
  HICON icon_ = nullptr;
};

}  // namespace

void ShowAboutDialog(HINSTANCE module, HWND owner, const Folders& folders, std::int32_t& useSound) {
  const LinkClasses classes(module);
  AboutBox(module, folders, useSound).Show(owner);
}

}  // namespace tarnwick
