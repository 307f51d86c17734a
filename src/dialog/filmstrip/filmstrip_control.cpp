#include "dialog/filmstrip/filmstrip_control.h"

#include <utility>

#include "controls/control_record.h"
#include "controls/control_window.h"
#include "controls/tool_tip.h"
#include "dialog/models/film_cells.h"
#include "dialog/presets/folder_listing.h"
#include "presets/color_list.h"
#include "resources/art_ids.h"

namespace tarnwick {
namespace {

constexpr int kNextButton = 1003;
constexpr int kPrevButton = 1004;
constexpr UINT_PTR kSlideTimer = 1;

std::vector<std::string> LooksIn(const std::string& folder) {
  std::vector<std::string> files;
  for (const FolderEntry& entry : ListFolder(folder)) {
    if (!entry.isFolder && entry.isArchived) files.push_back(entry.name);
  }
  return ListBackPalettes(files);
}

HWND MakeArrow(HWND strip, int id, HINSTANCE instance) {
  return CreateWindowExA(0, "BUTTON", "", WS_CHILD | WS_VISIBLE | BS_BITMAP, 0, 0, kFilmArrow,
                         kFilmHeight, strip, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                         instance, nullptr);
}

}  // namespace

TFilmstripControl::TFilmstripControl(FilterGlobals& g, PresetLibrary& presets, BitmapSet& bitmaps,
                                     FilmstripHooks hooks)
    : g_(g), presets_(presets), bitmaps_(bitmaps), hooks_(std::move(hooks)) {}

int TFilmstripControl::ScanPresets(PresetKind kind) {
  presetKind_ = kind;
  names_.clear();
  if (!g_.folders.presetFolder.empty()) names_ = LooksIn(presets_.Folders().Folder(kind));
  return static_cast<int>(names_.size());
}

void TFilmstripControl::AttachToDialogItem(HWND page, int id) {
  const HWND item = GetDlgItem(page, id);
  if (item == nullptr) return;
  AttachTo(item);
  // The arrows are not painted over.
  SetWindowLongPtrA(item, GWL_STYLE, GetWindowLongPtrA(item, GWL_STYLE) | WS_CLIPCHILDREN);
  RECT client{};
  GetClientRect(item, &client);
  SetWindowPos(item, nullptr, 0, 0, AdoptedFilmWidth(client.right), client.bottom,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void TFilmstripControl::CreateStrip(HINSTANCE instance) {
  if (window == nullptr) return;
  SetWindowPos(window, nullptr, 0, 0, kFilmWidth, kFilmHeight,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  const auto load = [&](int art) { return bitmaps_.LoadOnFace(instance, art); };
  prevButton_ = MakeArrow(window, kPrevButton, instance);
  nextButton_ = MakeArrow(window, kNextButton, instance);
  SkinStockButton(prevButtonState_, prevButton_, load(TARNWICK_ART_FILM_BACK),
                  load(TARNWICK_ART_FILM_BACK_HOVER), load(TARNWICK_ART_FILM_BACK_DISABLED),
                  nullptr, nullptr, nullptr);
  SkinStockButton(nextButtonState_, nextButton_, load(TARNWICK_ART_FILM_FORWARD),
                  load(TARNWICK_ART_FILM_FORWARD_HOVER), load(TARNWICK_ART_FILM_FORWARD_DISABLED),
                  nullptr, nullptr, nullptr);
  MoveWindow(nextButton_, kFilmWidth - kFilmArrow, 0, kFilmArrow, kFilmHeight, TRUE);
  AddToolTip(prevButton_, "View previous preset effects", nullptr);
  AddToolTip(nextButton_, "View more preset effects", nullptr);
  AddToolTip(window, "Select and apply preset effect", nullptr);
}

void TFilmstripControl::Place(int top, int room) {
  if (window == nullptr) return;
  const FilmPlace place = PlaceFilmstrip(room);
  film_.Resize(place.width, kFilmHeight);
  const int arrow = film_.ArrowWidth();
  MoveWindow(window, place.x, top, place.width, kFilmHeight, TRUE);
  MoveWindow(prevButton_, 0, 0, arrow, kFilmHeight, TRUE);
  MoveWindow(nextButton_, place.width - arrow, 0, arrow, kFilmHeight, TRUE);
}

void TFilmstripControl::LoadThumbnails(PresetKind kind) {
  presetKind_ = kind;
  if (film_.IsSliding()) KillTimer(window, kSlideTimer);
  film_.SetCount(static_cast<int>(names_.size()));
  cells_.assign(names_.size(), {});
  const std::string folder = presets_.Folders().Folder(kind);
  for (std::size_t i = 0; i < names_.size(); ++i) {
    const auto cell = LoadOrMakeFilmCell(
        {names_[i], folder + names_[i] + ".bmp", g_.folders.dataFolder}, *g_.gParams, g_.session,
        [this](std::string_view name) { return Load(std::string(name)); });
    if (cell) cells_[i] = ThumbnailBitmap(*cell);
  }
  UpdateArrows();
  Repaint();
}

void TFilmstripControl::RescanAndLoad(PresetKind kind) {
  const std::vector<std::string> before = names_;
  const PresetKind kindBefore = presetKind_;
  ScanPresets(kind);
  if (names_ != before || kind != kindBefore) LoadThumbnails(kind);
}

void TFilmstripControl::ApplyRandomPreset(AutoDice& dice) {
  if (names_.empty()) return;
  const auto pick = static_cast<std::size_t>(dice.Below(static_cast<int>(names_.size())));
  g_.gParams->SnapshotHeld = 0;
  if (Load(names_[pick])) g_.gParams->SnapshotHeld = 1;
}

void TFilmstripControl::ApplyFirstPreset() {
  if (names_.empty()) return;
  g_.gParams->SnapshotHeld = 0;
  if (Load(names_.front())) g_.gParams->SnapshotHeld = 1;
}

bool TFilmstripControl::Load(const std::string& name) {
  return presetKind_ == PresetKind::kBackPalette ? presets_.LoadBackPalette(name)
                                                 : presets_.LoadPreset(name, presetKind_);
}

// Called by the system, through which nothing may be thrown.
LRESULT TFilmstripControl::WindowProc(HWND target, UINT message, WPARAM wParam, LPARAM lParam) {
  try {
    return Dispatch(target, message, wParam, lParam);
  } catch (...) {
    hooks_.fail();
    return 0;
  }
}

LRESULT TFilmstripControl::Dispatch(HWND target, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT:
      Paint();
      return 0;
    case WM_MOUSEMOVE:
      Move(PointerOf(lParam).x, PointerOf(lParam).y, (wParam & MK_LBUTTON) != 0);
      return 0;
    case WM_LBUTTONDOWN:
      Press(PointerOf(lParam).x, PointerOf(lParam).y);
      return 0;
    case WM_LBUTTONUP:
      if (film_.Release(PointerOf(lParam).x, PointerOf(lParam).y)) Repaint();
      return 0;
    case WM_CAPTURECHANGED:
      if (reinterpret_cast<HWND>(lParam) != target && film_.LosePointer()) Repaint();
      return 0;
    case WM_COMMAND:
      if (HIWORD(wParam) != BN_CLICKED) return 0;
      if (LOWORD(wParam) == kNextButton) Slide(FilmSlide::kForward);
      if (LOWORD(wParam) == kPrevButton) Slide(FilmSlide::kBack);
      return 0;
    case WM_TIMER:
      if (wParam == kSlideTimer) Step();
      return 0;
    case WM_DESTROY:
      KillTimer(target, kSlideTimer);
      prevButton_ = nextButton_ = nullptr;
      return 0;
    default:
      return DefWindowProcA(target, message, wParam, lParam);
  }
}

void TFilmstripControl::Move(int x, int y, bool isPressed) {
  switch (film_.Move(x, y, isPressed)) {
    case FilmMove::kNone:
      return;
    case FilmMove::kTakePointer:
      if (GetCapture() != window) SetCapture(window);
      break;
    case FilmMove::kReleasePointer:
      if (GetCapture() == window) ReleaseCapture();
      break;
  }
  Repaint();
}

void TFilmstripControl::Press(int x, int y) {
  if (const std::optional<int> preset = film_.PresetAt(x, y)) {
    // A copy: a message box may let the names change meanwhile.
    const std::string name = names_[static_cast<std::size_t>(*preset)];
    Apply(name);
  }
  if (film_.Press(x, y)) Repaint();
}

void TFilmstripControl::Apply(const std::string& name) {
  hooks_.aboutToApply();
  g_.gParams->SnapshotHeld = 0;
  if (!Load(name)) return;
  g_.gParams->SnapshotHeld = 1;
  presets_.ShowNewBackground();
  hooks_.applied();
}

void TFilmstripControl::Slide(FilmSlide direction) {
  if (film_.StartSlide(direction)) SetTimer(window, kSlideTimer, kFilmStepMs, nullptr);
}

void TFilmstripControl::Step() {
  if (film_.Step()) {
    KillTimer(window, kSlideTimer);
    UpdateArrows();
  }
  Repaint();
}

// The one that can be pressed comes first: it may take the keys over.
void TFilmstripControl::UpdateArrows() {
  if (film_.CanGoBack()) EnableArrow(prevButton_, true);
  EnableArrow(nextButton_, film_.CanGoForward());
  EnableArrow(prevButton_, film_.CanGoBack());
  prevButtonState_.inside = nextButtonState_.inside = 0;
}

void TFilmstripControl::EnableArrow(HWND arrow, bool isOn) {
  if (arrow == nullptr || (IsWindowEnabled(arrow) != FALSE) == isOn) return;
  if (!isOn && GetFocus() == arrow) GiveUpKeys(arrow);
  if (!isOn && GetCapture() == arrow) ReleaseCapture();
  EnableWindow(arrow, isOn ? TRUE : FALSE);
}

// A disabled control would keep the keys to itself, Enter and Escape among them.
void TFilmstripControl::GiveUpKeys(HWND arrow) {
  const HWND dialog = GetAncestor(window, GA_ROOT);
  const HWND other = arrow == prevButton_ ? nextButton_ : prevButton_;
  const HWND next = IsWindowEnabled(other) != FALSE ? other : GetDlgItem(dialog, IDOK);
  SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(next), TRUE);
}

void TFilmstripControl::Repaint() const {
  if (window != nullptr) RedrawControl(window);
}

}  // namespace tarnwick
