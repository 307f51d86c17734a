#include "dialog/windows/preset_page.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

#include "base/native_path.h"
#include "controls/control_shared.h"

namespace tarnwick {
namespace {

constexpr DWORD kListStyle = LBS_NOTIFY | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | WS_VSCROLL;

// A template without controls. Not visible: being activated takes seconds without a
// window manager.
struct EmptyTemplate {
  DLGTEMPLATE dialog{WS_POPUP, 0, 0, 0, 0, 400, 300};
  WORD noMenuClassOrTitle[3] = {0, 0, 0};
};

}  // namespace

INT_PTR CALLBACK PresetPage::PageProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrA(window, DWLP_USER, lParam);
    SetPropA(window, "NoBox", reinterpret_cast<HANDLE>(1));
    return FALSE;
  }
  auto* const page = reinterpret_cast<PresetPage*>(GetWindowLongPtrA(window, DWLP_USER));
  if (page == nullptr || page->library == nullptr) return FALSE;
  switch (message) {
    case WM_COMMAND:
      return page->library->Command(window, wParam) ? TRUE : FALSE;
    case WM_DRAWITEM:
      return page->library->Draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)) ? TRUE : FALSE;
    default:
      return FALSE;
  }
}

PresetPage::PresetPage(const std::string& folder) {
  const HINSTANCE instance = GetModuleHandleA(nullptr);
  MakeSharedControls(instance);
  SharedControls().fonts = MakeControlFonts(96);
  root_ = temp_.Path() + "\\" + folder + "\\Presets\\";
  std::filesystem::create_directories(PathOfName(root_));
  g.gParams = &settings;
  g.folders.presetFolder = root_;
  SettingsSession unused;
  InitSettingsToDefaults(settings, unused);
  lastUsed = settings;

  const EmptyTemplate empty;
  window = CreateDialogIndirectParamA(instance, &empty.dialog, nullptr, PageProc,
                                      reinterpret_cast<LPARAM>(this));
  EXPECT_NE(window, nullptr);
  g.ownerWindow = window;
  int x = 0;
  for (const PresetList& list : kPresetLists) {
    const bool isSorted = list.kind != PresetKind::kBasic;
    Add("LISTBOX", list.listId, x, 20, 110, 200, kListStyle | (isSorted ? LBS_SORT : 0));
    Add("STATIC", list.pathLabelId, x, 0, 110, 18, SS_NOPREFIX);
    if (list.saveId != 0) Add("BUTTON", list.saveId, x, 230, 50, 20, WS_TABSTOP);
    if (list.deleteId != 0) Add("BUTTON", list.deleteId, x + 55, 230, 50, 20, WS_TABSTOP);
    x += 115;
  }
  library = std::make_unique<PresetLibrary>(
      g, views, lastUsed,
      PresetLibraryHooks{
          .syncStrip = [this] { asked_.emplace_back("strip"); },
          .showOptions = [this] { asked_.emplace_back("options"); },
          .settingsChanged =
              [this] {
                asked_.emplace_back(settings.SnapshotHeld != 0 ? "changed, held" : "changed");
              },
          .showPage = [this] { asked_.emplace_back("page"); },
          .remakeLayers =
              [this](KeptLayers kept) {
                asked_.push_back(std::string("layers ") + (kept.washes ? 'w' : '-') +
                                 (kept.surfaces ? 's' : '-') + (kept.background ? 'b' : '-'));
              }});
}

PresetPage::~PresetPage() {
  DestroyWindow(window);
  FreeSharedControls();
  std::error_code ignored;
  std::filesystem::remove_all(PathOfName(root_), ignored);
}

void PresetPage::Add(const char* className, int id, int x, int y, int width, int height,
                     DWORD style) {
  EXPECT_NE(CreateWindowExA(0, className, "", WS_CHILD | WS_VISIBLE | style, x, y, width, height,
                            window, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                            GetModuleHandleA(nullptr), nullptr),
            nullptr)
      << className;
}

std::string PresetPage::PathOf(const std::string& file) const {
  return root_ + file;
}

void PresetPage::Put(const std::string& file, std::string_view text) {
  const std::filesystem::path path = PathOfName(PathOf(file));
  std::filesystem::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << text;
}

bool PresetPage::Has(const std::string& file) const {
  return GetFileAttributesA(PathOf(file).c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::string PresetPage::Read(const std::string& file) const {
  std::ifstream stream(PathOf(file), std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::string> PresetPage::Rows(int listId) const {
  std::vector<std::string> rows;
  const LRESULT count = SendMessageA(Item(listId), LB_GETCOUNT, 0, 0);
  for (LRESULT i = 0; i < count; ++i) {
    char text[300] = "";
    SendMessageA(Item(listId), LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
    rows.emplace_back(text);
  }
  return rows;
}

std::string PresetPage::TextOf(int id) const {
  char text[300] = "";
  GetDlgItemTextA(window, id, text, sizeof text);
  return text;
}

void PresetPage::Select(int listId, std::string_view row) {
  const std::string text(row);
  const LRESULT found = SendMessageA(Item(listId), LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                     reinterpret_cast<LPARAM>(text.c_str()));
  EXPECT_GE(found, 0) << text;
  SendMessageA(Item(listId), LB_SETCURSEL, static_cast<WPARAM>(found), 0);
  SendMessageA(window, WM_COMMAND, MAKEWPARAM(listId, LBN_SELCHANGE),
               reinterpret_cast<LPARAM>(Item(listId)));
}

void PresetPage::DoubleClick(int listId, std::string_view row) {
  Select(listId, row);
  SendMessageA(window, WM_COMMAND, MAKEWPARAM(listId, LBN_DBLCLK),
               reinterpret_cast<LPARAM>(Item(listId)));
}

void PresetPage::Press(int buttonId) {
  SendMessageA(window, WM_COMMAND, MAKEWPARAM(buttonId, BN_CLICKED),
               reinterpret_cast<LPARAM>(Item(buttonId)));
}

std::vector<std::string> PresetPage::Asked() {
  return std::exchange(asked_, {});
}

}  // namespace tarnwick
