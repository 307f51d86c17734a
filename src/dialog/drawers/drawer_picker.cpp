// What a drawer does: lists, pages, presses and keys.
#include "dialog/drawers/drawer_picker.h"

#include <utility>

#include "base/native_path.h"
#include "dialog/drawers/drawer_ids.h"
#include "dialog/models/drawer_places.h"
#include "dialog/presets/folder_listing.h"
#include "settings/ascii_text.h"
#include "textures/texture_thumbnail.h"

namespace tarnwick {
namespace {

std::string WithSeparator(std::string folder) {
  if (!folder.empty() && folder.back() != '\\' && folder.back() != '/') folder += '\\';
  return folder;
}

// Files with this ending, in the system's order.
std::vector<std::string> FilesIn(const std::string& folder, std::string_view ending) {
  std::vector<std::string> names;
  if (folder.empty()) return names;  // where the module is unknown
  for (FolderEntry& entry : ListFolder(WithSeparator(folder))) {
    const std::string_view name = entry.name;
    if (!entry.isFolder && name.size() > ending.size() &&
        EqualIgnoringCase(name.substr(name.size() - ending.size()), ending)) {
      names.push_back(std::move(entry.name));
    }
  }
  return names;
}

}  // namespace

TDrawerPicker::~TDrawerPicker() {
  cells_.clear();
  cellHost_.reset();
  if (window != nullptr) DestroyWindow(window);
  if (captionFont_ != nullptr) DeleteObject(captionFont_);
}

LRESULT TDrawerPicker::WindowProc(HWND target, UINT message, WPARAM wParam, LPARAM lParam) {
  try {
    return Handle(target, message, wParam, lParam);
  } catch (...) {
    if (hooks.fail) hooks.fail();
    return 0;
  }
}

LRESULT TDrawerPicker::Handle(HWND target, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CTLCOLORSTATIC: {
      const auto dc = reinterpret_cast<HDC>(wParam);
      SetTextColor(dc, RGB(255, 255, 255));
      SetBkMode(dc, TRANSPARENT);
      return reinterpret_cast<LRESULT>(GetStockObject(BLACK_BRUSH));
    }
    case WM_COMMAND:
      if (Command(LOWORD(wParam), HIWORD(wParam))) return 0;
      break;
    case WM_GETDLGCODE:
      return DLGC_WANTALLKEYS;
    case WM_KEYDOWN:
      if (Key(wParam)) return 0;
      break;
    case WM_MOUSEWHEEL:
      TurnPage(static_cast<short>(HIWORD(wParam)) < 0 ? 1 : -1);
      return 0;
    case WM_LBUTTONDOWN:
      SetFocus(target);
      return 0;
    default:
      break;
  }
  return TDrawerWindow::WindowProc(target, message, wParam, lParam);
}

bool TDrawerPicker::Command(int controlId, WORD notification) {
  switch (controlId) {
    case kDrawerSetBox:
    case kDrawerEffectBox:
      if (notification == CBN_SELCHANGE) FilterChanged();
      // So that the keys go on to the cells.
      if (notification == CBN_CLOSEUP) SetFocus(window);
      return true;
    case kDrawerPageLeft:
      TurnPage(-1);
      SetFocus(window);
      return true;
    case kDrawerPageRight:
      TurnPage(1);
      SetFocus(window);
      return true;
    case kDrawerLive:
      liveOn_ = liveButton_ != nullptr && liveButton_->latched != 0;
      LoadPage();
      SetFocus(window);
      return true;
    case IDOK:
      Accept();
      return true;
    case IDCANCEL:
      Cancel();
      return true;
    default:
      return false;
  }
}

void TDrawerPicker::Tell(WORD notification) {
  if (!isOpen_) return;
  SendMessageA(owner, WM_COMMAND, MAKEWPARAM(id, notification), 0);
}

void TDrawerPicker::ReadFolder() {
  if (mode_ == DrawerMode::kTextures) {
    list_.SetTextures(ListTextures(folder_, FilesIn(folder_, ".twk"), FirstTexture::kMove), sets_);
  } else {
    list_.SetColors(ListColorPresets(PathOfName(folder_), FilesIn(folder_, ".twkpst")));
  }
}

void TDrawerPicker::SetSets(TextureSetTable sets) {
  sets_ = std::move(sets);
  if (mode_ == DrawerMode::kTextures) FillBoxes();
}

void TDrawerPicker::OpenList(const std::string& name, const std::string& folder) {
  if (window == nullptr) return;
  if (!listReady_) {
    folder_ = folder;
    try {
      ReadFolder();
    } catch (const std::bad_alloc&) {
      MessageBoxA(owner, "Cannot allocate memory in TPicker::InitWSHList", "Plugins Alert",
                  MB_OK | MB_ICONINFORMATION);
    }
    MakeCells();
    listReady_ = true;
  }
  if (mode_ == DrawerMode::kTextures && !name.empty()) list_.SelectByName(name);
  if (liveButton_ != nullptr) liveButton_->latched = liveOn_ ? 1 : 0;
  LoadPage();
}

std::optional<ThumbnailPicture> TDrawerPicker::PictureOf(int place, float& scale) {
  // The first one stands for none.
  if (place == 0) return std::nullopt;
  if (mode_ == DrawerMode::kColors) {
    return hooks.colorPreview ? hooks.colorPreview(list_.DisplayName(place)) : std::nullopt;
  }
  auto picture = LoadOrMakeThumbnail(folder_, list_.Texture(place), kDrawerThumbnail, true);
  if (picture && liveOn_ && hooks.livePreview) scale = hooks.livePreview(*picture);
  return picture;
}

void TDrawerPicker::LoadPage() {
  const int count = static_cast<int>(cells_.size());
  for (int i = count - 1; i >= 0 && list_.PlaceOfCell(i) < 0; --i) {
    ShowWindow(cells_[static_cast<std::size_t>(i)]->window, SW_HIDE);
  }
  if (hooks.progress != nullptr) hooks.progress->Report(0, count);
  for (int i = 0; i < count; ++i) {
    const int place = list_.PlaceOfCell(i);
    if (place < 0) break;
    TPickerThump2& cell = *cells_[static_cast<std::size_t>(i)];
    ShowWindow(cell.window, SW_SHOWNA);
    float scale = 1;
    const auto picture = PictureOf(place, scale);
    cell.Put(place, list_.DisplayName(place),
             picture ? std::optional(ThumbnailBitmap(*picture)) : std::nullopt, scale);
    cell.MarkSelected(place == list_.SelectedPlace());
    RedrawWindow(cell.window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    if (hooks.progress != nullptr) hooks.progress->Report(i + 1, count);
  }
  if (hooks.progress != nullptr) hooks.progress->Report(0, count);
  ShowPageButtons();
}

void TDrawerPicker::FilterChanged() {
  const auto rowOf = [](HWND box) {
    return box != nullptr ? static_cast<int>(SendMessageA(box, CB_GETCURSEL, 0, 0)) : 0;
  };
  if (mode_ == DrawerMode::kColors) {
    if (!list_.FilterCategory(rowOf(effectBox_))) {
      SendMessageA(effectBox_, CB_SETCURSEL, static_cast<WPARAM>(list_.CategoryRow()), 0);
      return;
    }
  } else {
    list_.FilterTextures({rowOf(setBox_), rowOf(effectBox_)});
  }
  LoadPage();
}

void TDrawerPicker::TurnPage(int step) {
  if (list_.TurnPage(step)) LoadPage();
}

void TDrawerPicker::CellPressed(int place) {
  SetFocus(window);
  list_.Select(place);
  MarkSelected();
  Tell(kDrawerTried);
}

// Posted, since the drawer goes with it.
void TDrawerPicker::CellDoubleClicked() {
  if (isOpen_) PostMessageA(owner, WM_COMMAND, MAKEWPARAM(id, kDrawerAccepted), 0);
}

void TDrawerPicker::MarkSelected() {
  for (const auto& cell : cells_) {
    cell->MarkSelected(cell->textureIndex == list_.SelectedPlace());
    UpdateWindow(cell->window);
  }
}

bool TDrawerPicker::Key(WPARAM key) {
  switch (key) {
    case VK_LEFT:
      MoveSelection(-1);
      return true;
    case VK_RIGHT:
      MoveSelection(1);
      return true;
    case VK_UP:
      MoveSelection(-kDrawerColumns);
      return true;
    case VK_DOWN:
      MoveSelection(kDrawerColumns);
      return true;
    case VK_PRIOR:
      TurnPage(-1);
      return true;
    case VK_NEXT:
      TurnPage(1);
      return true;
    case VK_RETURN:
      Accept();
      return true;
    case VK_ESCAPE:
      Cancel();
      return true;
    case VK_TAB:
      SetFocus(setBox_ != nullptr ? setBox_ : effectBox_);
      return true;
    default:
      return false;
  }
}

// From the one that is selected, or onto the first of the page.
void TDrawerPicker::MoveSelection(int step) {
  const int old = list_.SelectedPlace();
  const int place = old < 0 ? list_.PlaceOfCell(0) : old + step;
  if (place < 0 || place >= list_.ShownCount()) return;
  list_.Select(place);
  if (list_.TurnToSelected()) LoadPage();
  MarkSelected();
  Tell(kDrawerTried);
}

void TDrawerPicker::Relayout() {
  if (!listReady_) return;
  PlaceButtons();
  MakeCells();
  LoadPage();
}

std::string TDrawerPicker::SelectedName() const {
  const std::string& name = list_.SelectedName();
  return mode_ == DrawerMode::kTextures ? name : ColorDisplayName(name);
}

void TDrawerPicker::Open() {
  isOpen_ = true;
  SlideIn();
  SetFocus(window);
}

void TDrawerPicker::Close() {
  if (!std::exchange(isOpen_, false)) return;
  SlideOut();
}

}  // namespace tarnwick
