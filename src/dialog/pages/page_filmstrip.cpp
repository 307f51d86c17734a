// The strip of looks on the background page.
#include "dialog/pages/settings_page.h"
#include "dialog/presets/preset_library.h"

namespace tarnwick {
namespace {

constexpr int kFilmstrip = 1157;
constexpr int kColorGroup = 2121;

}  // namespace

void SettingsPage::MakeFilmstrip() {
  film_ = std::make_unique<TFilmstripControl>(
      context_.g, context_.presets, context_.bitmaps,
      FilmstripHooks{[this] { FlushSpin(); }, [this] { context_.showAll(); },
                     [this] { context_.fail(); }});
  film_->ScanPresets(PresetKind::kBackPalette);
  film_->AttachToDialogItem(window_, kFilmstrip);
  film_->CreateStrip(context_.instance);
  film_->LoadThumbnails(PresetKind::kBackPalette);
  context_.presets.TellOfChanges([this] { film_->RescanAndLoad(PresetKind::kBackPalette); });
}

bool SettingsPage::PlaceFilmstrip(int& bottom) {
  if (film_ == nullptr || film_->window == nullptr) return false;
  RECT place{};
  GetWindowRect(film_->window, &place);
  MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&place), 2);
  RECT client{}, group{};
  GetClientRect(window_, &client);
  GetWindowRect(Item(kColorGroup), &group);
  // In the middle below the groups, which are narrower than the page; if it is wider than
  // they are, in all the room there is.
  const int groupWidth = static_cast<int>(group.right - group.left);
  film_->Place(place.top, groupWidth >= kFilmWidth ? groupWidth : client.right);
  bottom = place.top + kFilmHeight;
  return true;
}

}  // namespace tarnwick
