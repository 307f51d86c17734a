#include "dialog/effect_tabs.h"

#include <algorithm>

#include "controls/control_button.h"
#include "controls/control_shared.h"
#include "controls/label_control.h"
#include "controls/tool_tip.h"
#include "resources/art_ids.h"

namespace tarnwick {
namespace {

// Bold letters reach beyond their places.
constexpr int kOverhang = 1;

}  // namespace

void EffectTabs::Create(HWND parent, HINSTANCE instance, int dpi) {
  parent_ = parent;
  Measure(parent);
  MakeTexts(parent, dpi);
  MakeCrosses(parent, instance);
  MakeSeparators(parent, instance);
}

void EffectTabs::Measure(HWND parent) {
  const HDC dc = GetDC(parent);
  const HGDIOBJ before = SelectObject(dc, SharedControls().fonts.FontCaptionHover);
  for (std::size_t i = 0; i < kStripTexts.size(); ++i) {
    RECT place{};
    DrawTextA(dc, kStripTexts[i].text, -1, &place, DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX);
    widths_[i] = place.right + kOverhang;
  }
  if (before != nullptr) SelectObject(dc, before);
  ReleaseDC(parent, dc);
}

void EffectTabs::MakeTexts(HWND parent, int dpi) {
  for (std::size_t i = 0; i < kStripTexts.size(); ++i) {
    const StripText& text = kStripTexts[i];
    // It has its size from the start, since its tip covers what is there by then.
    TContaner* const label =
        CreateLabelControl(0, 0, std::max(StripTextWidth(text, dpi), widths_[i]),
                           StripTextHeight(dpi), parent, text.id, text.text, true, false);
    if (label == nullptr) continue;
    label->style = kTrackingLabel;
    ShowWindow(label->window, SW_HIDE);
    AddToolTip(label->window, text.tip, nullptr);
    items_.push_back({text.id, label->window, label});
  }
}

void EffectTabs::MakeCrosses(HWND parent, HINSTANCE instance) {
  for (const StripCross& cross : kStripCrosses) {
    ControlButton* const button =
        CreateButtonControl(parent, instance, 0, 0, kCrossSize, kCrossSize, cross.id);
    if (button == nullptr) continue;
    ShowWindow(button->window, SW_HIDE);
    SetButtonBitmaps(*button, TARNWICK_ART_CROSS, TARNWICK_ART_CROSS_HOVER, TARNWICK_ART_CROSS, 0);
    AddToolTip(button->window, cross.tip, nullptr);
    items_.push_back({cross.id, button->window, nullptr});
  }
}

void EffectTabs::MakeSeparators(HWND parent, HINSTANCE instance) {
  for (const int id : kStripSeparators) {
    const HWND window =
        CreateWindowExA(0, "Static", "|", WS_CHILD | SS_CENTER | SS_NOPREFIX, 0, 0, 8, 16, parent,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), instance, nullptr);
    if (window == nullptr) continue;
    SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(SharedControls().fonts.FontLinkBold),
                 FALSE);
    items_.push_back({id, window, nullptr});
  }
}

void EffectTabs::Show(const std::vector<StripPlace>& row, int selected) {
  const HWND focus = GetFocus();
  bool losesFocus = false;
  for (const Item& item : items_) {
    const auto found = std::find_if(row.begin(), row.end(),
                                    [&](const StripPlace& place) { return place.id == item.id; });
    if (found == row.end()) {
      losesFocus = losesFocus || item.window == focus;
      ShowWindow(item.window, SW_HIDE);
      continue;
    }
    const Place& place = found->place;
    if (item.label != nullptr) item.label->state = item.id == selected ? kPressed : kIdle;
    SetWindowPos(item.window, nullptr, place.x, place.y, place.width, place.height,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS | SWP_NOREDRAW | SWP_SHOWWINDOW);
  }
  // The keys go on where the pointer has been.
  if (losesFocus) SetFocus(GetDlgItem(parent_, selected));
}

void EffectTabs::Enable(bool isEnabled) {
  for (const Item& item : items_) EnableWindow(item.window, isEnabled ? TRUE : FALSE);
}

}  // namespace tarnwick
