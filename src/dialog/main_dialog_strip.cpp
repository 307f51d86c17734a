// The strip above the pane in the main dialog: views, second effects and Reset.
#include "dialog/dialog_commands.h"
#include "dialog/main_dialog.h"

namespace tarnwick {
namespace {

bool ConfirmsResetAll(HWND window) {
  constexpr char kQuestion[] =
      "Are you sure you want to delete all the current settings? Once deleted, they cannot be "
      "restored";
  return MessageBoxA(window, kQuestion, "Tarnwick Studio", MB_YESNO | MB_ICONQUESTION) == IDYES;
}

}  // namespace

void MainDialog::MakeStrip() {
  views_.hasSecondWash = g_.gParams->SecondWashExists != 0;
  views_.hasSecondSurface = g_.gParams->SecondSurfaceExists != 0;
  effectTabs_.Create(window_, instance_, screenDpi_);
  stripFrame_.textWidths = effectTabs_.Widths();
  stripFrame_.previewLeft = frame_.previewLeft;
  stripFrame_.previewTop = frame_.previewTop;
}

// The strip and the option of the current page.
void MainDialog::ShowEffectTabs() {
  effectTabs_.Show(LayoutStrip(stripFrame_, views_), ButtonOfView(views_.Current()));
  ShowOptions();
  const RECT strip = {frame_.previewLeft, layout_.upperStripTop,
                      frame_.previewLeft + layout_.pane.width,
                      layout_.upperStripTop + kStripHeight};
  RedrawWindow(window_, &strip, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void MainDialog::ChooseInStrip(int command) {
  if (pages_) pages_->FinishSpins();
  DoLayerWork(ChangeEffects(views_, *g_.gParams, command));
  ChooseView(views_, command);
  ShowEffectTabs();
  UpdatePage(ShowsOneEffect(views_) ? PageUpdate::kShowSettings : PageUpdate::kEnable);
  SendMessageA(window_, WM_COMMAND, kSettingsChanged, 0);
}

void MainDialog::ResetPressed() {
  if (views_.currentTab == kBasicTab && !ConfirmsResetAll(window_)) return;
  if (pages_) pages_->FinishSpins();
  const KeptLayers kept = ResetPage(*g_.gParams, g_.session, views_.currentTab);
  // First, lest the pane shows a second effect that has gone.
  SyncStrip();
  if (preview_) preview_->RemakeLayers(kept);
  ShowEffectTabs();
  SendMessageA(window_, WM_COMMAND, kSettingsChanged, 0);
  UpdatePage(PageUpdate::kShowSettings);
}

void MainDialog::SyncStrip() {
  const StripSync sync = SyncViews(views_, *g_.gParams);
  if (!sync.isChanged) return;
  DoLayerWork(sync.wash);
  DoLayerWork(sync.surface);
  ShowEffectTabs();
}

void MainDialog::DoLayerWork(LayerWork work) {
  if (!preview_) return;
  switch (work) {
    case LayerWork::kNone:
      break;
    case LayerWork::kMakeSecondWash:
      preview_->MakeSecondWash();
      preview_->PropagateLinks(LayerKind::kWash);
      break;
    case LayerWork::kDropSecondWash:
      preview_->DropSecondWash();
      break;
    case LayerWork::kRemakeWashes:
      preview_->RemakeLayers({.washes = false, .surfaces = true, .background = true});
      break;
    case LayerWork::kMakeSecondSurface:
      preview_->MakeSecondSurface();
      preview_->PropagateLinks(LayerKind::kSurface);
      break;
    case LayerWork::kDropSecondSurface:
      preview_->DropSecondSurface();
      break;
    case LayerWork::kRemakeSurfaces:
      preview_->RemakeLayers({.washes = true, .surfaces = false, .background = true});
      break;
  }
}

void MainDialog::UpdatePage(PageUpdate update) {
  SettingsPage* const page = pages_ ? pages_->Current() : nullptr;
  if (page == nullptr) return;
  if (update == PageUpdate::kShowSettings) {
    page->ShowValues();
  } else {
    page->Enable();
  }
}

void MainDialog::PropagateLinksOf(LayerKind kind) {
  if (kind == LayerKind::kWash && pages_) pages_->ShowWashOffset();
  if (edits_) PropagateLinks(edits_->Scope(), kind);
}

}  // namespace tarnwick
