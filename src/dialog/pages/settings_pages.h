#pragma once
#include <windows.h>

#include <array>
#include <memory>

#include "dialog/models/effect_views.h"
#include "dialog/pages/page_context.h"
#include "dialog/pages/settings_page.h"

namespace tarnwick {

// The pages under the tab control, made when they are first shown. What a hidden one
// shows is stale until it comes up again.
class SettingsPages {
 public:
  explicit SettingsPages(PageContext context);
  ~SettingsPages();
  SettingsPages(const SettingsPages&) = delete;
  SettingsPages& operator=(const SettingsPages&) = delete;

  // Hides the page that is up and shows that of `tab` with the settings as they are.
  void Select(int tab, const RECT& place);
  void Place(const RECT& place);
  void EnableWindowOfPage(bool isEnabled);

  // The page of the current tab; null while there is none.
  [[nodiscard]] SettingsPage* Current() const { return pages_[current_].get(); }
  // Every page that has been made shows the settings.
  void ShowAll();
  // The offset of the wash, wherever it is shown.
  void ShowWashOffset();
  // Work that up-downs have put off, before the layers change. The caller redraws.
  void FinishSpins();

 private:
  PageContext context_;
  std::array<std::unique_ptr<SettingsPage>, kTabs> pages_;
  std::size_t current_ = kBasicTab;
};

}  // namespace tarnwick
