// The controls of a drawer: boxes, buttons, cells and where they lie.
#include <algorithm>

#include "controls/back_buffer.h"
#include "controls/control_classes.h"
#include "controls/image_control.h"
#include "controls/tool_tip.h"
#include "dialog/drawers/drawer_box_keys.h"
#include "dialog/drawers/drawer_ids.h"
#include "dialog/drawers/drawer_picker.h"
#include "dialog/models/drawer_places.h"
#include "presets/color_categories.h"
#include "resources/art_ids.h"
#include "textures/texture_effects.h"

namespace tarnwick {
namespace {

constexpr int kCellHost = 33;
constexpr int kFirstCell = 100;
constexpr int kCaptionHeight = 12;

HMENU MenuOf(int id) {
  return reinterpret_cast<HMENU>(static_cast<INT_PTR>(id));
}

void UseFont(HWND window, HFONT font) {
  SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
}

void AddRow(HWND box, std::string_view text) {
  SendMessageA(box, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(std::string(text).c_str()));
}

// As wide as its longest row, where the box itself has less room.
void FitList(HWND box) {
  const HDC dc = GetDC(box);
  const auto font = reinterpret_cast<HFONT>(SendMessageA(box, WM_GETFONT, 0, 0));
  int width = 0;
  {
    const Selected selected(dc, font);
    const auto rows = static_cast<int>(SendMessageA(box, CB_GETCOUNT, 0, 0));
    for (int row = 0; row < rows; ++row) {
      const auto at = static_cast<WPARAM>(row);
      const LRESULT length = SendMessageA(box, CB_GETLBTEXTLEN, at, 0);
      if (length < 0) continue;
      std::string text(static_cast<std::size_t>(length) + 1, '\0');
      SendMessageA(box, CB_GETLBTEXT, at, reinterpret_cast<LPARAM>(text.data()));
      SIZE size{};
      GetTextExtentPoint32A(dc, text.c_str(), static_cast<int>(length), &size);
      width = std::max(width, static_cast<int>(size.cx));
    }
  }
  ReleaseDC(box, dc);
  width += GetSystemMetrics(SM_CXVSCROLL) + 4 * GetSystemMetrics(SM_CXEDGE);
  SendMessageA(box, CB_SETDROPPEDWIDTH, static_cast<WPARAM>(width), 0);
}

void MoveButton(const ControlButton* button, const Place& place) {
  if (button != nullptr) {
    MoveWindow(button->window, place.x, place.y, place.width, place.height, TRUE);
  }
}

void ShowButton(const ControlButton* button, bool isShown) {
  if (button != nullptr) ShowWindow(button->window, isShown ? SW_SHOWNA : SW_HIDE);
}

}  // namespace

HWND TDrawerPicker::MakeCaption(int controlId, int left, int top, int w, int h, const char* text) {
  const HWND caption =
      CreateWindowExA(0, "STATIC", text, WS_CHILD | WS_VISIBLE | SS_RIGHT, left, top, w, h, window,
                      MenuOf(controlId), SharedControls().instance, nullptr);
  if (captionFont_ == nullptr) {
    // As large on every screen as its place is.
    captionFont_ = CreateFontA(kCaptionHeight, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE,
                               DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                               PROOF_QUALITY, DEFAULT_PITCH | FF_DONTCARE, "Arial");
  }
  UseFont(caption, captionFont_);
  return caption;
}

HWND TDrawerPicker::MakeBox(int controlId, int left, int top, int w, int h, const char* tip) {
  const HWND box = CreateWindowExA(
      0, "COMBOBOX", "", WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, left,
      top, w, h, window, MenuOf(controlId), SharedControls().instance, nullptr);
  UseFont(box, SharedControls().fonts.FontSmallBold);
  AddToolTip(box, tip, nullptr);
  PassKeysToParent(box);
  return box;
}

ControlButton* TDrawerPicker::MakeButton(int controlId, const Place& place, int normal, int hover,
                                         int pressed, const char* tip) {
  ControlButton* const button = CreateButtonControl(window, SharedControls().instance, place.x,
                                                    place.y, place.width, place.height, controlId);
  if (button == nullptr) return nullptr;
  SetButtonBitmaps(*button, normal, hover, pressed, 0);
  AddToolTip(button->window, tip, nullptr);
  return button;
}

void TDrawerPicker::OnCreated() {
  const bool isTextures = mode_ == DrawerMode::kTextures;
  if (isTextures) {
    MakeCaption(kDrawerSetLabel, 7, 60, 60, 12, "Texture Set");
    setBox_ = MakeBox(kDrawerSetBox, 72, 56, 120, 250,
                      "Filter all texture effects by texture set or status");
    MakeCaption(kDrawerEffectLabel, 197, 60, 35, 12, "Effect");
    effectBox_ = MakeBox(kDrawerEffectBox, 237, 56, 125, 350,
                         "Filter all texture effects by style or effect");
  } else {
    MakeCaption(kDrawerEffectLabel, 19, 60, 45, 12, "Category");
    effectBox_ = MakeBox(kDrawerEffectBox, 69, 56, 280, 440, "Choose a color category");
  }
  FillBoxes();
  const DrawerButtons places = DrawerButtonPlaces(width, height);
  selectButton_ =
      MakeButton(IDOK, places.select, TARNWICK_ART_DRAWER_SELECT, TARNWICK_ART_DRAWER_SELECT_HOVER,
                 TARNWICK_ART_DRAWER_SELECT, "Select and apply this effect");
  cancelButton_ = MakeButton(IDCANCEL, places.cancel, TARNWICK_ART_DRAWER_CANCEL,
                             TARNWICK_ART_DRAWER_CANCEL_HOVER, TARNWICK_ART_DRAWER_CANCEL,
                             "Close effect picker and return to plug-in");
  if (isTextures) {
    liveButton_ = MakeButton(kDrawerLive, places.live, TARNWICK_ART_DRAWER_LIVE,
                             TARNWICK_ART_DRAWER_LIVE_HOVER, TARNWICK_ART_DRAWER_LIVE_ON,
                             "Preview all effects on current image in picker");
    if (liveButton_ != nullptr) liveButton_->toggle = 1;
  }
  pageLeft_ = MakeButton(kDrawerPageLeft, DrawerPageLeftPlace(), TARNWICK_ART_DRAWER_LEFT,
                         TARNWICK_ART_DRAWER_LEFT_HOVER, TARNWICK_ART_DRAWER_LEFT, "Previous page");
  pageRight_ = MakeButton(kDrawerPageRight, DrawerPageRightPlace(width), TARNWICK_ART_DRAWER_RIGHT,
                          TARNWICK_ART_DRAWER_RIGHT_HOVER, TARNWICK_ART_DRAWER_RIGHT, "Next page");
  const Place title = DrawerTitlePlace(width);
  const HBITMAP picture = LoadBitmapA(
      SharedControls().instance,
      MAKEINTRESOURCEA(isTextures ? TARNWICK_ART_DRAWER_TEXTURES : TARNWICK_ART_DRAWER_COLORS));
  if (picture != nullptr &&
      CreateImageControl(window, SharedControls().instance, title.x, title.y, title.width,
                         title.height, kDrawerTitle, picture, nullptr) == nullptr) {
    DeleteObject(picture);
  }
}

void TDrawerPicker::FillBoxes() {
  if (mode_ == DrawerMode::kColors) {
    for (const std::string_view row : kColorCategories) AddRow(effectBox_, row);
    SendMessageA(effectBox_, CB_SETCURSEL, 0, 0);
    FitList(effectBox_);
    return;
  }
  SendMessageA(setBox_, CB_RESETCONTENT, 0, 0);
  SendMessageA(effectBox_, CB_RESETCONTENT, 0, 0);
  AddRow(setBox_, "All Textures Sets");
  AddRow(setBox_, "No Texture/Solid");
  for (const TextureSetEntry& set : sets_) AddRow(setBox_, set.name);
  AddRow(effectBox_, "All Effects");
  AddRow(effectBox_, "No Texture/Solid");
  for (const std::string_view effect : kTextureEffects) AddRow(effectBox_, effect);
  SendMessageA(setBox_, CB_SETCURSEL, 0, 0);
  SendMessageA(effectBox_, CB_SETCURSEL, 0, 0);
  FitList(setBox_);
  FitList(effectBox_);
}

void TDrawerPicker::MakeCells() {
  cells_.clear();
  cellHost_.reset();
  list_.SetRows(DrawerRows(height));
  if (list_.CellCount() == 0) return;
  const Place place = DrawerCellsPlace(width, list_.CellCount() / kDrawerColumns);
  auto host = std::make_unique<TDrawerWindow>();
  if (!host->Create(window, place.x, place.y, place.width, place.height, kCellHost)) return;
  cellHost_ = std::move(host);
  for (int i = 0; i < list_.CellCount(); ++i) {
    const Place at = DrawerCellPlace(i);
    auto cell = std::make_unique<TPickerThump2>(*this);
    if (!cell->Create(cellHost_->window, at.x, at.y, at.width, at.height, kFirstCell + i)) break;
    cells_.push_back(std::move(cell));
  }
  ShowWindow(cellHost_->window, SW_SHOWNA);
}

void TDrawerPicker::PlaceButtons() {
  const DrawerButtons places = DrawerButtonPlaces(width, height);
  MoveButton(selectButton_, places.select);
  MoveButton(cancelButton_, places.cancel);
  MoveButton(liveButton_, places.live);
  MoveButton(pageRight_, DrawerPageRightPlace(width));
}

void TDrawerPicker::ShowPageButtons() {
  ShowButton(pageLeft_, list_.HasPageBefore());
  ShowButton(pageRight_, list_.HasPageAfter());
}

}  // namespace tarnwick
