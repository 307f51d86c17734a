#include "dialog/pages/settings_pages.h"

#include "dialog/dialog_commands.h"

namespace tarnwick {

SettingsPages::SettingsPages(PageContext context) : context_(std::move(context)) {
  context_.showAll = [this] { ShowAll(); };
}

// The windows look into their pages.
SettingsPages::~SettingsPages() {
  for (const auto& page : pages_) {
    if (page && IsWindow(page->Window()) != FALSE) DestroyWindow(page->Window());
  }
}

void SettingsPages::Select(int tab, const RECT& place) {
  const auto next = static_cast<std::size_t>(tab);
  FinishSpins();
  if (SettingsPage* const old = Current(); old != nullptr && next != current_) {
    const HWND focus = GetFocus();
    if (focus != nullptr && IsChild(old->Window(), focus) != FALSE) {
      SetFocus(GetDlgItem(context_.dialog, kTabControl));
    }
    old->Show(false);
  }
  current_ = next;
  if (!pages_[next]) {
    pages_[next].reset(SettingsPage::Create(context_, tab, place));
    if (!pages_[next]) return;
  } else {
    pages_[next]->Place(place);
    pages_[next]->ShowValues();
  }
  pages_[next]->Show(true);
}

void SettingsPages::Place(const RECT& place) {
  if (SettingsPage* const page = Current(); page != nullptr) page->Place(place);
}

void SettingsPages::EnableWindowOfPage(bool isEnabled) {
  if (SettingsPage* const page = Current(); page != nullptr) {
    EnableWindow(page->Window(), isEnabled ? TRUE : FALSE);
  }
}

void SettingsPages::ShowAll() {
  for (const auto& page : pages_) {
    if (page) page->ShowValues();
  }
}

void SettingsPages::ShowWashOffset() {
  if (pages_[kWashTab]) pages_[kWashTab]->ShowOffset();
}

void SettingsPages::FinishSpins() {
  for (const auto& page : pages_) {
    if (page) page->SettleSpin();
  }
}

}  // namespace tarnwick
