// Clicks on up-downs come in bursts: the value follows each of them, the picture the
// last one.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "dialog/models/effect_views.h"
#include "dialog/pages/settings_page.h"

namespace tarnwick {
namespace {

constexpr UINT kBurstMilliseconds = 500;

// One for each kind of work that is put off.
enum SpinTimer : UINT_PTR {
  kPlainTimer = 333,
  kWashScaleTimer = 334,
  kCoverageTimer = 335,
  kCoverageScaleTimer = 336,
  kSurfaceScaleTimer = 337,
  kBackgroundScaleTimer = 338,
};

UINT_PTR TimerOf(int tab, const ControlRow& row) {
  switch (row.setter) {
    case LayerSetter::kScale:
      if (tab == kWashTab) return kWashScaleTimer;
      return tab == kSurfaceTab ? kSurfaceScaleTimer : kBackgroundScaleTimer;
    case LayerSetter::kCoverage:
      return kCoverageTimer;
    case LayerSetter::kCoverageScale:
      return kCoverageScaleTimer;
    default:
      return kPlainTimer;
  }
}

int PositionOf(HWND spin, const ControlRow& row) {
  // Its short form knows no sign.
  if (row.minimum < 0) return static_cast<int>(SendMessageA(spin, UDM_GETPOS32, 0, 0));
  return static_cast<short>(LOWORD(SendMessageA(spin, UDM_GETPOS, 0, 0)));
}

}  // namespace

bool SettingsPage::Scroll(WPARAM wParam, LPARAM lParam) {
  const auto spin = reinterpret_cast<HWND>(lParam);
  if (spin == nullptr) return false;
  const int id = GetDlgCtrlID(spin);
  for (const ControlRow& row : RowsOf(tab_)) {
    if (row.kind != RowKind::kValue || row.spinId != id) continue;
    TMacSlider* const slider = Slider(row);
    if (slider == nullptr) return true;
    const int position = std::clamp(PositionOf(spin, row), row.minimum, row.maximum);
    if (slider->value != static_cast<float>(position)) {
      SetSliderValue(*slider, static_cast<float>(position), true);
    }
    // Arrow keys in the edit field have no end of their own everywhere.
    const bool isKey = LOWORD(wParam) == SB_THUMBPOSITION && GetCapture() != spin;
    if (LOWORD(wParam) == SB_ENDSCROLL || isKey) {
      if (spinRow_ != nullptr && spinRow_ != &row) FinishSpin();
      if (position != context_.edits.Value(tab_, row)) context_.edits.Store(tab_, row, position);
      ArmTimer(row);
    }
    return true;
  }
  return false;
}

void SettingsPage::ArmTimer(const ControlRow& row) {
  if (spinTimer_ != 0) KillTimer(window_, spinTimer_);
  spinRow_ = &row;
  // What this returns for a window's timer is not 0, and need not be its id.
  const UINT_PTR timer = TimerOf(tab_, row);
  spinTimer_ = SetTimer(window_, timer, kBurstMilliseconds, nullptr) != 0 ? timer : 0;
}

void SettingsPage::TimerExpired(UINT_PTR timer) {
  if (timer != spinTimer_) return;
  // A box is up, which a texture that is being loaded may have brought: nothing is to be
  // rendered below it. The timer comes again.
  if (IsWindowEnabled(context_.dialog) == FALSE) return;
  FinishSpin();
  Changed();
}

void SettingsPage::FinishSpin() {
  const ControlRow* const row = std::exchange(spinRow_, nullptr);
  if (row == nullptr) return;
  context_.edits.FinishStored(tab_, *row);
  if (row->isLinked) ShowOffset();
}

void SettingsPage::SettleSpin() {
  FinishSpin();
  if (spinTimer_ == 0) return;
  KillTimer(window_, spinTimer_);
  spinTimer_ = 0;
}

void SettingsPage::FlushSpin() {
  if (spinTimer_ == 0) return;
  FinishSpin();
  Changed();
}

}  // namespace tarnwick
