// Where the main dialog's controls lie.
#include <windows.h>

#include <commctrl.h>

#include "controls/control_shared.h"
#include "dialog/dialog_commands.h"
#include "dialog/main_dialog.h"
#include "dialog/models/new_layer_options.h"

namespace tarnwick {
namespace {

// Windows that a place moves together, so that the screen changes once.
class Move {
 public:
  explicit Move(int count) : batch_(BeginDeferWindowPos(count)) {}
  ~Move() {
    if (batch_ != nullptr) EndDeferWindowPos(batch_);
  }
  Move(const Move&) = delete;
  Move& operator=(const Move&) = delete;

  void To(HWND window, const Place& place) {
    if (window == nullptr || batch_ == nullptr) return;
    batch_ = DeferWindowPos(batch_, window, nullptr, place.x, place.y, place.width, place.height,
                            SWP_NOZORDER | SWP_NOACTIVATE);
  }

 private:
  HDWP batch_;
};

}  // namespace

void MainDialog::Place() {
  if (tabs_ == nullptr) return;  // the first one comes before there is anything to place
  RECT client{};
  GetClientRect(window_, &client);
  frame_.width = client.right;
  frame_.height = client.bottom;
  layout_ = LayoutDialog(frame_);
  {
    Move move(24);
    move.To(Item(kRightHeader), layout_.rightHeader);
    move.To(Item(kViewAll), layout_.viewAll);
    move.To(Item(kManual), layout_.manual);
    move.To(Item(kAuto), layout_.automatic);
    move.To(Item(kAbout), layout_.about);
    move.To(tabs_, layout_.tabs);
    move.To(Item(IDOK), layout_.ok);
    move.To(Item(IDCANCEL), layout_.cancel);
    move.To(Item(kZoomIn), layout_.zoomIn);
    move.To(Item(kZoomOut), layout_.zoomOut);
    move.To(Item(kPercentage), layout_.percentage);
    move.To(Item(kProgressBar), layout_.progress);
    move.To(Item(kPane), layout_.pane);
    for (std::size_t i = 0; i < kNewLayerOptions.size(); ++i) {
      move.To(Item(kNewLayerOptions[i].boxId), layout_.optionBox);
      move.To(Item(kNewLayerOptions[i].labelId),
              i == kBackgroundOption ? layout_.backgroundLabel : layout_.optionLabel);
    }
  }
  if (pages_) pages_->Place(PagePlace());
  if (drawers_) drawers_->Move(layout_.drawer);
  // As wide as the pane, which is rounded up.
  strips_.SetWidth(layout_.pane.width);
  stripFrame_.previewRight = layout_.previewRight;
  effectTabs_.Show(LayoutStrip(stripFrame_, views_), ButtonOfView(views_.Current()));
  if (preview_) PrintPercentage();
  InvalidateRect(window_, nullptr, TRUE);
}

// The picture follows when the frame is let go, not while it is dragged.
void MainDialog::Resized() {
  if (drawers_) drawers_->Relayout();
  const PaneSize pane = PaneNow();
  if (!preview_ || !preview_->FitProxyToPane(pane)) return;
  SetZoomButtons(preview_->Resized(pane));
  TakePan();
  RefreshPreview();
  RedrawWindow(window_, nullptr, nullptr,
               RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
  PrintPercentage();
}

// Where the tab control shows its pages, in the dialog.
RECT MainDialog::PagePlace() const {
  RECT place{};
  GetClientRect(tabs_, &place);
  MapWindowPoints(tabs_, window_, reinterpret_cast<POINT*>(&place), 2);
  SendMessageA(tabs_, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&place));
  InflateRect(&place, -GetSystemMetrics(SM_CXEDGE), -GetSystemMetrics(SM_CYEDGE));
  return place;
}

INT_PTR MainDialog::LimitTrackSize(LPARAM info) const {
  const HDC screen = GetDC(nullptr);
  const TrackSize size = SmallestTrackSize(GetDeviceCaps(screen, LOGPIXELSY));
  ReleaseDC(nullptr, screen);
  auto* const limits = reinterpret_cast<MINMAXINFO*>(info);
  limits->ptMinTrackSize = {size.width, size.height};
  return TRUE;
}

PaneSize MainDialog::PaneNow() const {
  return pane_ != nullptr ? PaneSize{pane_->paneWidth, pane_->paneHeight} : PaneSize{};
}

}  // namespace tarnwick
