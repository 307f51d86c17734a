#include "dialog/picker/picker_strip_control.h"

#include <string>

#include "controls/back_buffer.h"
#include "controls/control_shared.h"
#include "controls/label_control.h"
#include "controls/tool_tip.h"
#include "resources/art_ids.h"

namespace tarnwick {
namespace {

constexpr std::uint8_t kStripKind = 1;
constexpr int kDotStep = 10;
constexpr COLORREF kLight = RGB(200, 200, 200), kFaint = RGB(85, 85, 85);
constexpr COLORREF kBlack = RGB(0, 0, 0), kWhite = RGB(255, 255, 255);

HBRUSH Ground() {
  return static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH));
}

struct LabelColors {
  COLORREF normal, hover, disabled, active;
};

TContaner* MakeLabel(HWND strip, const Place& place, int id, const std::string& text,
                     bool isEnabled, const LabelColors& colors) {
  TContaner* const label = CreateLabelControl(place.x, place.y, place.width, place.height, strip,
                                              id, text.c_str(), isEnabled, false);
  if (label == nullptr) return nullptr;
  label->style = kTrackingLabel;
  label->backBrush = Ground();
  label->colorNormal = colors.normal;
  label->colorHover = colors.hover;
  label->colorDisabled = colors.disabled;
  label->colorActive = colors.active;
  RedrawControl(label->window);
  return label;
}

void Enable(TContaner* control, bool isOn) {
  if (control == nullptr) return;
  EnableWindow(control->window, isOn ? TRUE : FALSE);
  control->enabled = isOn ? 1 : 0;
  if (!isOn) control->state = kIdle;
  RedrawControl(control->window);
}

}  // namespace

bool TPickerPages::Make(HWND dialog, int itemId, float fontScale) {
  if (!Attach(dialog, itemId, kStripKind)) return false;
  scale_ = fontScale;
  places_ = StripPlacesIn(width, height, scale_);
  MakeEnds();
  return true;
}

void TPickerPages::MakeEnds() {
  const auto makeButton = [&](const Place& at, int command) {
    return CreateButtonControl(window, SharedControls().instance, at.x, at.y, at.width, at.height,
                               command);
  };
  first_ = makeButton(places_.first, kFirstPageCommand);
  if (first_ != nullptr) {
    SetButtonBitmaps(*first_, TARNWICK_ART_PICKER_FIRST, TARNWICK_ART_PICKER_FIRST_HOVER,
                     TARNWICK_ART_PICKER_FIRST, TARNWICK_ART_PICKER_FIRST_DISABLED);
    AddToolTip(first_->window, "Return to the beginning of texture effects", nullptr);
  }
  last_ = makeButton(places_.last, kLastPageCommand);
  if (last_ != nullptr) {
    SetButtonBitmaps(*last_, TARNWICK_ART_PICKER_LAST, TARNWICK_ART_PICKER_LAST_HOVER,
                     TARNWICK_ART_PICKER_LAST, TARNWICK_ART_PICKER_LAST_DISABLED);
    AddToolTip(last_->window, "Go to the end of the texture effects", nullptr);
  }
  constexpr LabelColors kWords = {kLight, kWhite, kFaint, kWhite};
  previous_ = MakeLabel(window, places_.previous, kPreviousPageCommand, "Prev", true, kWords);
  if (previous_ != nullptr) AddToolTip(previous_->window, "Previous page", nullptr);
  next_ = MakeLabel(window, places_.next, kNextPageCommand, "Next", true, kWords);
  if (next_ != nullptr) AddToolTip(next_->window, "Next page", nullptr);
}

void TPickerPages::Show(int pages, int page) {
  pageCount = pages;
  currentPage = page;
  MakeLabels();
  Enable(first_, page > 0);
  Enable(previous_, page > 0);
  Enable(last_, page < pages - 1);
  Enable(next_, page < pages - 1);
}

void TPickerPages::MakeLabels() {
  for (const HWND label : labels_) DestroyWindow(label);
  labels_.clear();
  constexpr LabelColors kNumbers = {kBlack, kLight, kFaint, kWhite};
  for (const PageLabel& one : PageLabels(pageCount, currentPage, width, scale_)) {
    const TContaner* const label = MakeLabel(
        window, {one.x, places_.labelTop, one.width, places_.labelHeight}, kPageCommands + one.page,
        std::to_string(one.page + 1), one.page != currentPage, kNumbers);
    if (label != nullptr) labels_.push_back(label->window);
  }
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void TPickerPages::Press(int command) {
  const std::optional<int> page = PageOfCommand(command, currentPage, pageCount);
  if (!page) return;
  Show(pageCount, *page);
  PostMessageA(GetParent(window), WM_COMMAND, static_cast<WPARAM>(id), 0);
}

LRESULT TPickerPages::WindowProc(HWND target, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_ERASEBKGND:
      return TRUE;
    case WM_PAINT:
      Paint();
      return 0;
    case WM_COMMAND:
      try {
        Press(LOWORD(wParam));
      } catch (const std::bad_alloc&) {
        // Some labels are left out.
        return 0;
      }
      return 0;
    default:
      return TPickerControl::WindowProc(target, message, wParam, lParam);
  }
}

void TPickerPages::Paint() {
  const BackBuffer buffer(window);
  if (buffer.Dc() == nullptr) return;
  FillRect(buffer.Dc(), &buffer.Client(), Ground());
  for (int x = places_.dotsLeft; x <= places_.dotsRight; x += kDotStep) {
    SetPixel(buffer.Dc(), x, places_.dotsY, kBlack);
  }
}

}  // namespace tarnwick
