// News in the main dialog: the button for all presets lights up when there are some.
#include "controls/control_button.h"
#include "controls/control_classes.h"
#include "dialog/dialog_commands.h"
#include "dialog/main_dialog.h"
#include "resources/art_ids.h"

namespace tarnwick {
namespace {

constexpr UINT_PTR kLightUpTimer = 1127;
constexpr UINT kLightUpMs = 100;
constexpr UINT_PTR kAskTimer = 1128;
constexpr UINT kAskMs = 200;

}  // namespace

// Once told they stay, as long as the module does.
void MainDialog::LookForNews() {
  if (g_.hasNews) return ShowNews();
  if (g_.ui.newsAddress.empty()) return;
  news_ = std::make_unique<NewsCheck>(g_.ui.newsAddress, TARNWICK_VERSION);
  SetTimer(window_, kAskTimer, kAskMs, nullptr);
}

void MainDialog::ShowNews() {
  auto* const button = GetControlRecord<ControlButton>(Item(kViewAll), kButtonClass);
  if (button == nullptr) return;
  SetButtonBitmaps(*button, TARNWICK_ART_PRESETS_NEWS, TARNWICK_ART_PRESETS_NEWS_HOVER,
                   TARNWICK_ART_PRESETS_NEWS, 0);
  RedrawControl(button->window);
  SetTimer(window_, kLightUpTimer, kLightUpMs, nullptr);
}

void MainDialog::AskForNews() {
  const NewsCheck::Answer answer = news_ ? news_->Ask() : NewsCheck::Answer::kNothing;
  if (answer == NewsCheck::Answer::kPending) return;
  KillTimer(window_, kAskTimer);
  news_.reset();
  if (answer != NewsCheck::Answer::kNews) return;
  g_.hasNews = true;
  ShowNews();
}

// The pointer passes over it, as far as the button can tell, so that it shows that look.
void MainDialog::LightUpNews() {
  // Not while the user holds something: its end would go to the button.
  if (GetCapture() != nullptr) return;
  KillTimer(window_, kLightUpTimer);
  const HWND button = Item(kViewAll);
  SendMessageA(button, WM_MOUSEMOVE, 0, MAKELPARAM(100, 100));
  // The pointer is elsewhere, and so is what it presses next.
  if (GetCapture() == button) ReleaseCapture();
}

bool MainDialog::Timer(UINT_PTR id) {
  if (id == kAskTimer) return AskForNews(), true;
  if (id == kLightUpTimer) return LightUpNews(), true;
  return false;
}

}  // namespace tarnwick
