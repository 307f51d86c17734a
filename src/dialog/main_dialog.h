#pragma once
#include <windows.h>

#include <array>
#include <exception>
#include <memory>

#include "dialog/bitmap_set.h"
#include "dialog/drawers/dialog_drawers.h"
#include "dialog/edits/setting_edits.h"
#include "dialog/effect_tabs.h"
#include "dialog/help_viewer.h"
#include "dialog/models/dialog_layout.h"
#include "dialog/models/drawer_lists.h"
#include "dialog/models/effect_strip.h"
#include "dialog/models/effect_views.h"
#include "dialog/models/strip_commands.h"
#include "dialog/news_check.h"
#include "dialog/pages/settings_pages.h"
#include "dialog/presets/preset_library.h"
#include "dialog/preview/live_preview.h"
#include "dialog/preview_pane.h"
#include "dialog/shadow_strips.h"
#include "dialog/zoom_buttons.h"
#include "filter/filter_globals.h"
#include "presets/auto_dice.h"

namespace tarnwick {

// What the current page has to do after the strip: show the settings, or only see
// anew what of it can be used.
enum class PageUpdate { kShowSettings, kEnable };

// The module's modal window: a header, the tab control with its pages, the preview
// pane, and OK, Cancel and zoom below it. There is one at a time, on the host's
// thread. It works on the settings themselves; Cancel puts back what it found.
class MainDialog {
 public:
  // `g` has its settings locked as long as this lives.
  explicit MainDialog(FilterGlobals& g);
  MainDialog(const MainDialog&) = delete;
  MainDialog& operator=(const MainDialog&) = delete;

  // Opens the window over `owner` and returns what it ended with: IDOK or IDCANCEL,
  // or -1 where it could not be opened.
  // Throws what a message has thrown, since nothing may pass through the system.
  INT_PTR Run(HINSTANCE instance, HWND owner);

  INT_PTR Answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  // Renders the current view and shows it at once.
  void RefreshPreview();
  // Takes a snapshot of the settings unless one is held back, then refreshes.
  void SettingsChanged();
  // While a drawer is open nothing else of the dialog can be used.
  void SetBusy(bool isBusy);
  // After something but the strip has written the settings: the strip follows them.
  void SyncStrip();

 private:
  // The bar under the pane as the render's progress.
  class Bar : public ProgressSink {
   public:
    void Report(int done, int total) override;
    HWND window = nullptr;
  };

  // Notes what is being thrown and closes the window: the run ends with it.
  void Fail();
  INT_PTR Dispatch(UINT message, WPARAM wParam, LPARAM lParam);

  // main_dialog_start.cpp
  void Start();
  void Finish();
  void FindFrame();
  void MakeTabs();
  void MakePages();
  void MakeDrawers();
  void MakeOptions();
  void ShowOptions();
  void EnableOptions();
  void SkinHeader();
  void AddTips();
  void OpenPreview();
  void PutWindow();

  // main_dialog_place.cpp
  void Place();
  void Resized();
  INT_PTR LimitTrackSize(LPARAM info) const;
  [[nodiscard]] RECT PagePlace() const;

  // main_dialog_paint.cpp
  void Paint();
  INT_PTR Erase(HDC dc);
  INT_PTR ColorStatic(HDC dc, HWND control) const;

  // main_dialog_commands.cpp
  INT_PTR Command(WPARAM wParam, LPARAM lParam);
  void Ok(WORD notification);
  void Cancel(bool isByKey);
  void Zoom(int command);
  void PanEnded();
  void MoveOffset(int dx, int dy);
  void ClickLabel(std::size_t option);
  void ClickBox();
  bool KeepKeysWithDrawer();  // true when one is open
  INT_PTR SystemCommand(WPARAM command);
  void HotKey(WPARAM key);
  void SelectTab();

  // main_dialog_strip.cpp
  void MakeStrip();
  void ShowEffectTabs();
  void ChooseInStrip(int command);
  void ResetPressed();
  void DoLayerWork(LayerWork work);
  void UpdatePage(PageUpdate update);
  void PropagateLinksOf(LayerKind kind);

  // main_dialog_auto.cpp
  void ThrowLook();

  // main_dialog_news.cpp
  void LookForNews();
  void ShowNews();
  void AskForNews();
  void LightUpNews();
  [[nodiscard]] bool Timer(UINT_PTR id);

  [[nodiscard]] HWND Item(int id) const { return GetDlgItem(window_, id); }
  [[nodiscard]] PaneSize PaneNow() const;
  void SetZoomButtons(ZoomButtons buttons);
  void PrintPercentage();
  void TakePan();
  void ShowPaneImage();

  FilterGlobals& g_;
  HINSTANCE instance_ = nullptr;
  HWND window_ = nullptr;
  std::exception_ptr fault_;
  bool isStarted_ = false;

  int screenDpi_ = 96;
  float dpiFactor_ = 1;
  DialogFrame frame_;
  DialogLayout layout_;

  EffectSettings cancelSnapshot_;
  EffectSettings lastUsedSnapshot_;
  EffectViews views_;
  StripFrame stripFrame_;
  EffectTabs effectTabs_;

  Bar bar_;
  std::unique_ptr<LivePreview> preview_;
  std::unique_ptr<SettingEdits> edits_;
  std::unique_ptr<PresetLibrary> presets_;
  std::unique_ptr<SettingsPages> pages_;
  std::unique_ptr<DialogDrawers> drawers_;
  AutoDice dice_;
  DrawerLists drawerLists_;
  bool hasPlayed_ = false;  // the sound of Auto, which may still play
  std::unique_ptr<HelpViewer> help_;
  std::unique_ptr<NewsCheck> news_;   // while it runs
  TPreviewContaner* pane_ = nullptr;  // its window's
  BitmapSet bitmaps_;
  ShadowStrips strips_;
  ZoomButtonSkins zoomSkins_;
  HWND tabs_ = nullptr;
  std::array<TContaner*, 4> optionLabels_{};  // their windows', null where there is none
  HCURSOR openHand_ = nullptr;
  HCURSOR closedHand_ = nullptr;
};

// The dialog procedure: answers for the one dialog there is.
INT_PTR CALLBACK MainDialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Makes what all controls share, registers their classes, runs the dialog over `owner`
// and writes the ini file. True when it ended with OK.
[[nodiscard]] bool RunMainDialog(FilterGlobals& g);

}  // namespace tarnwick
