// What the full-size picker does: its controls, pages, keys and commands.
#include "dialog/picker/picker_dialog.h"

#include <commctrl.h>

#include "controls/control_classes.h"
#include "controls/control_shared.h"
#include "controls/models/dpi_scale.h"
#include "controls/tool_tip.h"
#include "dialog/models/fit_picture.h"
#include "dialog/models/help_pages.h"
#include "dialog/picker/texture_detail.h"
#include "environment/live_preview_flag.h"
#include "resources/art_ids.h"
#include "resources/picker_dialog_ids.h"
#include "textures/texture_effects.h"
#include "textures/texture_thumbnail.h"

namespace tarnwick {
namespace {

constexpr int kGrid = 33;
constexpr std::uint8_t kGridKind = 3;
constexpr int kFirstCell = 100;

struct Tip {
  int id;
  const char* text;
};
constexpr Tip kTips[] = {
    {IDCANCEL, "Close texture effect picker and return to plug-in"},
    {TARNWICK_PICKER_LIVE, "Preview all texture effects on current image"},
    {TARNWICK_PICKER_SETS, "Filter all texture effects by texture set or status"},
    {TARNWICK_PICKER_EFFECTS, "all texture effects by style or effect"},
};

void AddRow(HWND box, std::string_view text) {
  SendMessageA(box, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(std::string(text).c_str()));
}

int RowOf(HWND box) {
  const LRESULT row = SendMessageA(box, CB_GETCURSEL, 0, 0);
  return row > 0 ? static_cast<int>(row) : 0;
}

RECT RectOf(const Place& place) {
  return {place.x, place.y, place.x + place.width, place.y + place.height};
}

void ShowButton(const ControlButton* button, bool isShown) {
  if (button != nullptr) ShowWindow(button->window, isShown ? SW_SHOWNA : SW_HIDE);
}

}  // namespace

LRESULT PickerGridWindow::WindowProc(HWND target, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_GETDLGCODE:
      return DLGC_WANTARROWS;
    case WM_KEYDOWN:
      if (dialog_.Key(wParam)) return 0;
      break;
    case WM_LBUTTONDOWN:
      SetFocus(target);
      return 0;
    default:
      break;
  }
  return TPickerControl::WindowProc(target, message, wParam, lParam);
}

PickerDialog::PickerDialog(TPicker& picker, PickerPages& pages)
    : picker_(picker),
      pages_(pages),
      cellHooks_{[this](int place) { Guard([&] { Choose(place); }); },
                 [this](int place) { Guard([&] { ShowDetail(place); }); }} {}

PickerDialog::~PickerDialog() {
  if (bandPen_ != nullptr) DeleteObject(bandPen_);
}

// Called by the system, through which nothing may be thrown.
void PickerDialog::Guard(const std::function<void()>& work) {
  try {
    work();
  } catch (...) {
    if (picker_.hooks.fail) picker_.hooks.fail();
    EndDialog(window_, IDCANCEL);
  }
}

INT_PTR PickerDialog::Answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  window_ = window;
  INT_PTR answer = FALSE;
  Guard([&] { answer = Dispatch(message, wParam, lParam); });
  return answer;
}

INT_PTR PickerDialog::Dispatch(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG:
      Start();
      return FALSE;  // the focus has been set
    case WM_DESTROY:
      Finish();
      return TRUE;
    case WM_PAINT:
      Paint();
      return TRUE;
    case WM_CTLCOLORDLG:
      return reinterpret_cast<INT_PTR>(GetStockObject(BLACK_BRUSH));
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
      return ColorOf(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam));
    case WM_MOUSEWHEEL:
      Wheel(wParam);
      return TRUE;
    case WM_HELP:
      if (help_) help_->OpenHelp(kHelpPicker);
      return TRUE;
    case WM_COMMAND:
      return Command(LOWORD(wParam), HIWORD(wParam)) ? TRUE : FALSE;
    default:
      return FALSE;
  }
}

Place PickerDialog::FrameOf(int id) const {
  RECT place{};
  GetWindowRect(Item(id), &place);
  MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&place), 2);
  return {place.left, place.top, place.right - place.left, place.bottom - place.top};
}

void PickerDialog::Start() {
  bandPen_ = CreatePen(PS_SOLID, 1, RGB(127, 127, 125));
  const HDC dc = GetDC(window_);
  dpi_ = GetDeviceCaps(dc, LOGPIXELSY);
  ReleaseDC(window_, dc);
  scale_ = DpiFactorOf(dpi_);
  picker_.dialog = window_;
  help_ = std::make_unique<HelpViewer>(window_, picker_.helpFolder);
  FillBoxes();
  RECT client{};
  GetClientRect(window_, &client);
  const Place frame = FrameOf(TARNWICK_PICKER_FRAME);
  bands_ = BandsOf(frame, client.right, client.bottom, dpi_);
  grid_ = GridIn(frame);
  CentreInBand();
  MakePageButtons();
  for (const Tip& tip : kTips) AddToolTip(Item(tip.id), tip.text, nullptr);
  CheckDlgButton(window_, TARNWICK_PICKER_LIVE, picker_.livePreview ? BST_CHECKED : BST_UNCHECKED);
  strip_ = std::make_unique<TPickerPages>();
  if (!strip_->Make(window_, TARNWICK_PICKER_STRIP, scale_)) strip_.reset();
  MakeCells();
  if (picker_.hooks.openLive) picker_.hooks.openLive(grid_.thumbnail);
  SendMessageA(Item(TARNWICK_PICKER_PROGRESS), PBM_SETRANGE, 0, MAKELPARAM(0, kPickerCells));
  // To be seen while its first page is still being made.
  ShowWindow(window_, SW_SHOW);
  PageChanged();
  SetFocus(gridWindow_ ? gridWindow_->window : Item(IDCANCEL));
}

void PickerDialog::FillBoxes() {
  const HWND sets = Item(TARNWICK_PICKER_SETS);
  AddRow(sets, "All Textures Sets");
  for (const TextureSetEntry& set : picker_.sets) AddRow(sets, set.name);
  const HWND effects = Item(TARNWICK_PICKER_EFFECTS);
  AddRow(effects, "All Effects");
  for (const std::string_view effect : kTextureEffects) AddRow(effects, effect);
  for (const HWND box : {sets, effects}) {
    SendMessageA(box, CB_SETCURSEL, 0, 0);
    SendMessageA(box, WM_SETFONT, reinterpret_cast<WPARAM>(SharedControls().fonts.FontSmallBold),
                 FALSE);
  }
}

// Fonts grow less than the template does: on fine screens the filters' boxes are lower
// than their places.
void PickerDialog::CentreInBand() {
  for (const int id : {TARNWICK_PICKER_SETS_LABEL, TARNWICK_PICKER_SETS,
                       TARNWICK_PICKER_EFFECTS_LABEL, TARNWICK_PICKER_EFFECTS}) {
    const Place place = FrameOf(id);
    SetWindowPos(Item(id), nullptr, place.x,
                 bands_.filters.y + (bands_.filters.height - place.height) / 2, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
}

void PickerDialog::MakePageButtons() {
  const Place frame = FrameOf(TARNWICK_PICKER_FRAME);
  const auto make = [&](const Place& at, int id, int normal, int hover, const char* tip) {
    ControlButton* const button = CreateButtonControl(window_, SharedControls().instance, at.x,
                                                      at.y, at.width, at.height, id);
    if (button == nullptr) return button;
    SetButtonBitmaps(*button, normal, hover, normal, 0);
    AddToolTip(button->window, tip, nullptr);
    return button;
  };
  previous_ = make(PreviousPagePlace(frame), TARNWICK_PICKER_PREVIOUS, TARNWICK_ART_PICKER_LEFT,
                   TARNWICK_ART_PICKER_LEFT_HOVER, "Previous page");
  next_ = make(NextPagePlace(frame), TARNWICK_PICKER_NEXT, TARNWICK_ART_PICKER_RIGHT,
               TARNWICK_ART_PICKER_RIGHT_HOVER, "Next page");
}

void PickerDialog::MakeCells() {
  gridWindow_ = std::make_unique<PickerGridWindow>(*this);
  const Place& at = grid_.place;
  if (!gridWindow_->Create(window_, kGrid, kGridKind, at.x, at.y, at.width, at.height, 0)) {
    gridWindow_.reset();
    return;
  }
  SetWindowLongPtrA(gridWindow_->window, GWL_STYLE,
                    GetWindowLongPtrA(gridWindow_->window, GWL_STYLE) | WS_TABSTOP);
  for (int i = 0; i < kPickerCells; ++i) {
    auto cell = std::make_unique<TPickerThump>(cellHooks_);
    if (!cell->Make(gridWindow_->window, grid_, i, kFirstCell + i, scale_)) break;
    ShowWindow(cell->window, SW_HIDE);
    cells_[static_cast<std::size_t>(i)] = std::move(cell);
  }
}

void PickerDialog::Finish() {
  if (help_) help_->Stop();
  for (auto& cell : cells_) cell.reset();
  gridWindow_.reset();
  strip_.reset();
  picker_.dialog = nullptr;
  SaveLivePreviewFlag(picker_.livePreview);
}

void PickerDialog::Paint() {
  PAINTSTRUCT paint{};
  const HDC dc = BeginPaint(window_, &paint);
  if (dc == nullptr) return;
  const HGDIOBJ pen = SelectObject(dc, bandPen_);
  const HGDIOBJ brush = SelectObject(dc, GetStockObject(GRAY_BRUSH));
  for (const Place& band : {bands_.filters, bands_.pages}) {
    const RECT place = RectOf(band);
    Rectangle(dc, place.left, place.top, place.right, place.bottom);
  }
  SelectObject(dc, brush);
  SelectObject(dc, pen);
  for (const Place& face : {bands_.faceAbove, bands_.faceBelow}) {
    const RECT place = RectOf(face);
    FillRect(dc, &place, SharedControls().faceBrush);
  }
  EndPaint(window_, &paint);
}

INT_PTR PickerDialog::ColorOf(HDC dc, HWND control) const {
  const int id = GetDlgCtrlID(control);
  if (id == TARNWICK_PICKER_SETS_LABEL || id == TARNWICK_PICKER_EFFECTS_LABEL) {
    SetTextColor(dc, RGB(255, 255, 255));
    SetBkMode(dc, TRANSPARENT);
    return reinterpret_cast<INT_PTR>(GetStockObject(GRAY_BRUSH));
  }
  SetBkColor(dc, GetSysColor(COLOR_BTNFACE));
  return reinterpret_cast<INT_PTR>(SharedControls().faceBrush);
}

bool PickerDialog::Command(int id, WORD notification) {
  switch (id) {
    case IDOK:
      pages_.Accept();
      picker_.isAccepted = true;
      EndDialog(window_, IDOK);
      return true;
    case IDCANCEL:
      pages_.Cancel();
      EndDialog(window_, IDCANCEL);
      return true;
    case TARNWICK_PICKER_SETS:
    case TARNWICK_PICKER_EFFECTS:
      if (notification == CBN_SELCHANGE) {
        pages_.Filter({RowOf(Item(TARNWICK_PICKER_SETS)), RowOf(Item(TARNWICK_PICKER_EFFECTS))});
        PageChanged();
      }
      // So that the keys go on to the cells.
      if (notification == CBN_CLOSEUP && gridWindow_) SetFocus(gridWindow_->window);
      return true;
    case TARNWICK_PICKER_LIVE:
      if (notification != BN_CLICKED) return true;
      picker_.livePreview = IsDlgButtonChecked(window_, TARNWICK_PICKER_LIVE) == BST_CHECKED;
      LoadPage();
      return true;
    case TARNWICK_PICKER_PREVIOUS:
    case TARNWICK_PICKER_NEXT:
      if (strip_) {
        strip_->Press(id == TARNWICK_PICKER_NEXT ? kNextPageCommand : kPreviousPageCommand);
      }
      return true;
    case TARNWICK_PICKER_STRIP:
      // Its labels come and go: one that had the keys may have gone.
      if (gridWindow_) SetFocus(gridWindow_->window);
      if (strip_ && pages_.GoTo(strip_->currentPage)) {
        ShowPageButtons();
        LoadPage();
      }
      return true;
    default:
      return false;
  }
}

void PickerDialog::PageChanged() {
  if (strip_) strip_->Show(pages_.PageCount(), pages_.Page());
  ShowPageButtons();
  LoadPage();
}

void PickerDialog::ShowPageButtons() {
  ShowButton(previous_, pages_.Page() > 0);
  ShowButton(next_, pages_.Page() < pages_.PageCount() - 1);
}

void PickerDialog::LoadPage() {
  for (int i = kPickerCells - 1; i >= 0 && pages_.PlaceOfCell(i) < 0; --i) {
    const auto& cell = cells_[static_cast<std::size_t>(i)];
    if (cell) ShowWindow(cell->window, SW_HIDE);
  }
  const HWND bar = Item(TARNWICK_PICKER_PROGRESS);
  SendMessageA(bar, PBM_SETPOS, 0, 0);
  for (int i = 0; i < kPickerCells; ++i) {
    const int place = pages_.PlaceOfCell(i);
    const auto& cell = cells_[static_cast<std::size_t>(i)];
    if (place < 0 || !cell) break;
    LoadCell(*cell, place);
    SendMessageA(bar, PBM_SETPOS, static_cast<WPARAM>(i + 1), 0);
    UpdateWindow(bar);
  }
  SendMessageA(bar, PBM_SETPOS, 0, 0);
}

void PickerDialog::LoadCell(TPickerThump& cell, int place) {
  TextureRecord& record = picker_.filtered[static_cast<std::size_t>(place)];
  float scale = 1;
  auto picture = LoadOrMakeThumbnail(picker_.folder, record, grid_.thumbnail, false);
  if (picture) {
    // What was kept for other cells is as large as those.
    picture = FitPicture(*std::move(picture), grid_.thumbnail);
    if (picker_.livePreview && picker_.hooks.livePreview) {
      scale = picker_.hooks.livePreview(*picture);
    }
  }
  cell.Put(place, TextureDisplayName(record.fileName),
           picture ? std::optional(ThumbnailBitmap(*picture)) : std::nullopt, scale);
  cell.MarkCurrent(place == picker_.currentIndex);
  ShowWindow(cell.window, SW_SHOWNA);
  RedrawWindow(cell.window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void PickerDialog::MarkCurrent() {
  for (const auto& cell : cells_) {
    if (!cell) continue;
    cell->MarkCurrent(cell->textureIndex == picker_.currentIndex);
    UpdateWindow(cell->window);
  }
}

bool PickerDialog::Key(WPARAM key) {
  const auto turn = [&](int command) {
    if (strip_) strip_->Press(command);
  };
  bool isKnown = true;
  Guard([&] {
    switch (key) {
      case VK_LEFT:
        return Move(-1);
      case VK_RIGHT:
        return Move(1);
      case VK_UP:
        return Move(-kPickerColumns);
      case VK_DOWN:
        return Move(kPickerColumns);
      case VK_PRIOR:
        return turn(kPreviousPageCommand);
      case VK_NEXT:
        return turn(kNextPageCommand);
      case VK_HOME:
        return turn(kFirstPageCommand);
      case VK_END:
        return turn(kLastPageCommand);
      default:
        isKnown = false;
    }
  });
  return isKnown;
}

void PickerDialog::Move(int step) {
  if (pages_.Move(step)) {
    PageChanged();
  } else {
    MarkCurrent();
  }
}

void PickerDialog::Wheel(WPARAM wParam) {
  if (strip_) {
    strip_->Press(static_cast<short>(HIWORD(wParam)) < 0 ? kNextPageCommand : kPreviousPageCommand);
  }
}

void PickerDialog::Choose(int place) {
  pages_.Choose(place);
  PostMessageA(window_, WM_COMMAND, IDOK, 0);
}

void PickerDialog::ShowDetail(int place) {
  if (place < 0 || place >= static_cast<int>(picker_.filtered.size())) return;
  const TextureRecord record = picker_.filtered[static_cast<std::size_t>(place)];
  const bool isChosen = ShowTextureDetail(
      window_, {TextureDisplayName(record.fileName), FindSetName(picker_.sets, record.setId),
                [&](ThumbnailSize size) {
                  if (picker_.livePreview && picker_.hooks.detail) {
                    return picker_.hooks.detail(record.fileName, size);
                  }
                  bool isSmall = false;
                  return MakeThumbnail(picker_.folder, record.fileName, size, kDetailScale, isSmall)
                      .value_or(ThumbnailPicture());
                }});
  if (isChosen) {
    Choose(place);
  } else if (gridWindow_) {
    SetFocus(gridWindow_->window);
  }
}

}  // namespace tarnwick
