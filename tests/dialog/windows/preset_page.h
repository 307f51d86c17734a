#pragma once
#include <windows.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "dialog/presets/preset_library.h"
#include "support/temp_folder.h"

namespace tarnwick {

// A page with all five lists and their buttons and labels over a library whose folders
// are on the disk. Notes what the library asks of the dialog, as words: "strip",
// "options", "changed", "page", "layers" and which of these stay ("layers ws-").
class PresetPage {
 public:
  // `folder` is the name of the folder that holds the tree, in the code page's letters.
  explicit PresetPage(const std::string& folder = "Data");
  ~PresetPage();
  PresetPage(const PresetPage&) = delete;
  PresetPage& operator=(const PresetPage&) = delete;

  // A file below the presets' root; makes its folders. "/" parts them.
  void Put(const std::string& file, std::string_view text);
  [[nodiscard]] bool Has(const std::string& file) const;
  [[nodiscard]] std::string Read(const std::string& file) const;

  [[nodiscard]] HWND Item(int id) const { return GetDlgItem(window, id); }
  [[nodiscard]] std::vector<std::string> Rows(int listId) const;
  [[nodiscard]] std::string TextOf(int id) const;
  [[nodiscard]] bool IsEnabled(int id) const { return IsWindowEnabled(Item(id)) != FALSE; }
  // As the user does; the list tells the page.
  void Select(int listId, std::string_view row);
  void DoubleClick(int listId, std::string_view row);
  void Press(int buttonId);
  // What has been asked for since the last call.
  [[nodiscard]] std::vector<std::string> Asked();

  HWND window = nullptr;
  EffectSettings settings;
  EffectSettings lastUsed;
  EffectViews views;
  FilterGlobals g;
  std::unique_ptr<PresetLibrary> library;

 private:
  static INT_PTR CALLBACK PageProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  [[nodiscard]] std::string PathOf(const std::string& file) const;
  void Add(const char* className, int id, int x, int y, int width, int height, DWORD style);

  testing::TempFolder temp_;
  std::string root_;
  std::vector<std::string> asked_;
};

}  // namespace tarnwick
