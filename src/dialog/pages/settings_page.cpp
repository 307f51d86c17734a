// How a page comes into being, and where its controls lie.
#include "dialog/pages/settings_page.h"

#include <algorithm>
#include <exception>
#include <memory>
#include <utility>

#include "controls/control_classes.h"
#include "controls/control_shared.h"
#include "controls/tool_tip.h"
#include "dialog/models/effect_views.h"
#include "dialog/models/page_values.h"
#include "dialog/pages/name_field.h"
#include "dialog/presets/preset_library.h"
#include "resources/art_ids.h"
#include "resources/page_ids.h"

namespace tarnwick {
namespace {

constexpr int kTemplates[] = {TARNWICK_PAGE_BASIC, TARNWICK_PAGE_WASH, TARNWICK_PAGE_SURFACE,
                              TARNWICK_PAGE_BACKGROUND};

// What stretches with a page: the group of presets and what is in it.
struct Stretched {
  int group, list, path;
  int save, remove;
};
constexpr Stretched kStretched[] = {
    {1118, 1013, 1093, 1300, 1092},
    {TARNWICK_PRESETS_GROUP, 1085, 1094, 1382, 1087},
    {TARNWICK_PRESETS_GROUP, 1086, 1095, 1383, 1088},
    {TARNWICK_PRESETS_GROUP, 1012, 1096, 1045, 1046},
};

// Pixels below the group, and below its buttons.
constexpr int kBelowGroup = 9;
constexpr int kBelowButtons = 6;
constexpr int kAboveButtons = 4;
constexpr int kBelowFilmstrip = 2;

constexpr char kFactoryTip[] = "Click to apply factory created settings";
constexpr char kSavedTip[] = "Click to apply previously saved settings";
constexpr char kSaveTip[] = "Save current settings";
constexpr char kDeleteTip[] = "Delete selected preset";

constexpr int kFirstSwatch = 1047;
constexpr int kHiddenSaves[] = {1302, 1400};

INT_PTR CALLBACK PageProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrA(window, DWLP_USER, lParam);
    reinterpret_cast<SettingsPage*>(lParam)->Attach(window);
  }
  auto* const page = reinterpret_cast<SettingsPage*>(GetWindowLongPtrA(window, DWLP_USER));
  return page != nullptr ? page->Answer(message, wParam, lParam) : FALSE;
}

RECT PlaceIn(HWND window, HWND parent) {
  RECT place{};
  GetWindowRect(window, &place);
  MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

void MoveTo(HWND window, int left, int top, int width, int height) {
  if (window != nullptr) MoveWindow(window, left, top, width, height > 0 ? height : 0, TRUE);
}

// With its list, where it has one to drop: the height of such a control is that of both.
int WholeHeight(HWND window) {
  RECT place{};
  if (SendMessageA(window, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&place)) == 0) {
    GetWindowRect(window, &place);
  }
  return place.bottom - place.top;
}

}  // namespace

SettingsPage* SettingsPage::Create(const PageContext& context, int tab, const RECT& place) {
  auto page = std::make_unique<SettingsPage>(context, tab);
  const HWND window =
      CreateDialogParamA(context.instance, MAKEINTRESOURCEA(kTemplates[tab]), context.dialog,
                         PageProc, reinterpret_cast<LPARAM>(page.get()));
  if (window == nullptr) return nullptr;
  page->KeepWidths();
  page->Place(place);
  page->AddPresetTips();
  return page.release();
}

void SettingsPage::Attach(HWND window) {
  window_ = window;
}

// Called by the system, through which nothing may be thrown.
INT_PTR SettingsPage::Answer(UINT message, WPARAM wParam, LPARAM lParam) {
  try {
    switch (message) {
      case WM_INITDIALOG:
        Make();
        // The focus stays where it is.
        return FALSE;
      case WM_COMMAND:
        return Command(wParam, lParam) ? TRUE : FALSE;
      case WM_HSCROLL:
      case WM_VSCROLL:
        return Scroll(wParam, lParam) ? TRUE : FALSE;
      case WM_TIMER:
        TimerExpired(wParam);
        return TRUE;
      case WM_DRAWITEM:
        return context_.presets.Draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)) ? TRUE
                                                                                       : FALSE;
      case WM_CTLCOLORDLG:
        return reinterpret_cast<INT_PTR>(SharedControls().faceBrush);
      case WM_SIZE:
        Stretch();
        return TRUE;
      case WM_DESTROY:
        if (spinTimer_ != 0) KillTimer(window_, spinTimer_);
        spinTimer_ = 0;
        return TRUE;
      default:
        return FALSE;
    }
  } catch (...) {
    context_.fail();
    return FALSE;
  }
}

void SettingsPage::Make() {
  if (tab_ == kSurfaceTab) context_.g.session.SurfaceColorCategory = kCustomCategory;
  if (tab_ == kBackgroundTab) context_.g.session.BackgroundColorCategory = kCustomCategory;
  for (const ControlRow& row : RowsOf(tab_)) {
    MakeRow(row);
    AddTips(row);
  }
  // Nobody can press them.
  for (const int id : kHiddenSaves) {
    if (Item(id) != nullptr) ShowWindow(Item(id), SW_HIDE);
  }
  if (tab_ == kBackgroundTab) {
    auto* const swatch = GetControlRecord<ColorSwatch>(Item(kFirstSwatch), kSwatchClass);
    ColorPickers().fallbackCustomColors = swatch != nullptr ? &swatch->customColors : nullptr;
  }
  for (const PresetList& list : kPresetLists) {
    if (list.tab == tab_) context_.presets.Fill(window_, list.kind);
  }
  if (tab_ == kBackgroundTab) MakeFilmstrip();
  ShowValues();
}

TMacSlider* SettingsPage::GetSlider(int id) const {
  return GetControlRecord<TMacSlider>(Item(id), kSliderClass);
}

void SettingsPage::MakeRow(const ControlRow& row) {
  constexpr int kTurnLeft[] = {TARNWICK_ART_ROTATE_LEFT, TARNWICK_ART_ROTATE_LEFT_HOVER,
                               TARNWICK_ART_ROTATE_LEFT_DISABLED};
  switch (row.kind) {
    case RowKind::kValue: {
      TMacSlider* const slider = Slider(row);
      if (slider == nullptr) break;
      BindSlider(*slider);
      slider->editId = row.editId;
      slider->spinId = row.spinId;
      SetSliderRange(*slider, static_cast<float>(row.minimum), static_cast<float>(row.maximum));
      SendMessageA(Item(row.editId), EM_LIMITTEXT, kMaxValueText, 0);
      break;
    }
    case RowKind::kChoice:
      for (const char* const choice : row.choices) {
        SendMessageA(Item(row.id), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(choice));
      }
      break;
    case RowKind::kTurn:
      if (row.setter == LayerSetter::kTurnLeft) {
        SkinButton(row.id, {kTurnLeft[0], kTurnLeft[1], kTurnLeft[2], 0, 0, 0});
      } else {
        SkinButton(row.id, {TARNWICK_ART_ROTATE_RIGHT, TARNWICK_ART_ROTATE_RIGHT_HOVER,
                            TARNWICK_ART_ROTATE_RIGHT_DISABLED, 0, 0, 0});
      }
      break;
    case RowKind::kLink:
      SkinButton(row.id,
                 {TARNWICK_ART_LINK, TARNWICK_ART_LINK_HOVER, TARNWICK_ART_LINK_DISABLED,
                  TARNWICK_ART_LINKED, TARNWICK_ART_LINKED_HOVER, TARNWICK_ART_LINKED_DISABLED});
      break;
    case RowKind::kLight:
    case RowKind::kOffset: {
      auto* const ball = GetControlRecord<Rotor>(Item(row.id), kRotorClass);
      const bool isLight = row.kind == RowKind::kLight;
      if (ball != nullptr) {
        ball->title = isLight ? "Lighting direction" : "Wash Offset";
        ball->offsetMode = isLight ? 0 : 1;
        ball->azimuthEdit = isLight ? Item(row.editId) : nullptr;
        ball->altitudeEdit = isLight ? Item(row.spinId) : nullptr;
      }
      for (const int id : {row.editId, row.spinId}) {
        SendMessageA(Item(id), EM_LIMITTEXT, kMaxValueText, 0);
      }
      break;
    }
    case RowKind::kSeedField:
      SendMessageA(Item(row.id), EM_LIMITTEXT, kMaxValueText, 0);
      break;
    case RowKind::kTexture:
      TellDoubleClicks(Item(row.id));
      break;
    default:
      break;
  }
}

void SettingsPage::SkinButton(int id, std::array<int, 6> art) {
  const HWND button = Item(id);
  if (button == nullptr) return;
  const auto load = [&](int picture) {
    return picture != 0 ? context_.bitmaps.LoadOnFace(context_.instance, picture) : nullptr;
  };
  skins_.emplace_back();
  SkinStockButton(skins_.back(), button, load(art[0]), load(art[1]), load(art[2]), load(art[3]),
                  load(art[4]), load(art[5]));
}

void SettingsPage::AddTips(const ControlRow& row) {
  // A trackbar covers its slider.
  const TMacSlider* const slider = row.kind == RowKind::kValue ? Slider(row) : nullptr;
  AddToolTip(slider != nullptr && slider->trackbar != nullptr ? slider->trackbar : Item(row.id),
             row.tip, nullptr);
  if (row.editId != 0) {
    AddToolTip(Item(row.editId), row.secondTip != nullptr ? row.secondTip : row.tip, nullptr);
  }
  if (row.spinId != 0) AddToolTip(Item(row.spinId), row.tip, nullptr);
}

// Once they have their sizes.
void SettingsPage::AddPresetTips() {
  for (const PresetList& list : kPresetLists) {
    if (list.tab != tab_) continue;
    const HWND tip = AddToolTip(Item(list.listId),
                                list.kind == PresetKind::kBasic ? kFactoryTip : kSavedTip, nullptr);
    if (list.listId == kStretched[tab_].list) stretchedTip_ = tip;
    AddToolTip(Item(list.saveId), kSaveTip, nullptr);
    AddToolTip(Item(list.deleteId), kDeleteTip, nullptr);
  }
}

void SettingsPage::KeepWidths() {
  RECT client{};
  GetClientRect(window_, &client);
  templateWidth_ = width_ = client.right;
  for (HWND child = GetWindow(window_, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    const RECT place = PlaceIn(child, window_);
    across_.push_back({child, place.left, place.right});
  }
}

// On some screens the room grows less than fonts do: all there is gets narrower then. The
// first page is made before the room has its size.
void SettingsPage::FitAcross(int width) {
  const int fitted = std::min(width, templateWidth_);
  if (fitted <= 0 || std::exchange(width_, fitted) == fitted) return;
  const auto fit = [&](int x) { return MulDiv(x, fitted, templateWidth_); };
  for (const Across& one : across_) {
    const int left = fit(one.left);
    MoveTo(one.window, left, PlaceIn(one.window, window_).top, fit(one.right) - left,
           WholeHeight(one.window));
  }
}

void SettingsPage::Place(const RECT& place) {
  FitAcross(place.right - place.left);
  SetWindowPos(window_, HWND_TOP, place.left, place.top, place.right - place.left,
               place.bottom - place.top, SWP_NOACTIVATE);
}

void SettingsPage::Show(bool isShown) {
  ShowWindow(window_, isShown ? SW_SHOWNA : SW_HIDE);
}

// From the bottom up: the group, its buttons with the folder beside them, and the list
// with what is left.
void SettingsPage::Stretch() {
  const Stretched& parts = kStretched[tab_];
  const HWND group = Item(parts.group);
  const HWND list = Item(parts.list);
  if (group == nullptr || list == nullptr) return;
  RECT client{};
  GetClientRect(window_, &client);
  const RECT frame = PlaceIn(group, window_);
  const int bottom = client.bottom - kBelowGroup;
  // It has the same height on all screens, where the page's template grows.
  int top = frame.top;
  if (PlaceFilmstrip(top)) top += kBelowFilmstrip;
  MoveTo(group, frame.left, top, frame.right - frame.left, bottom - top);
  int buttonsTop = bottom - kBelowButtons;
  for (const int id : {parts.save, parts.remove}) {
    const RECT button = PlaceIn(Item(id), window_);
    buttonsTop = bottom - kBelowButtons - (button.bottom - button.top);
    MoveTo(Item(id), button.left, buttonsTop, button.right - button.left,
           button.bottom - button.top);
  }
  const RECT path = PlaceIn(Item(parts.path), window_);
  MoveTo(Item(parts.path), path.left, buttonsTop + kAboveButtons, path.right - path.left,
         path.bottom - path.top);
  const RECT rows = PlaceIn(list, window_);
  const int rowsTop = rows.top + top - frame.top;
  MoveTo(list, rows.left, rowsTop, rows.right - rows.left, buttonsTop - kAboveButtons - rowsTop);
  FitToolTip(stretchedTip_, list);
}

}  // namespace tarnwick
