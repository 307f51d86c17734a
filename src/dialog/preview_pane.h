#pragma once
#include <windows.h>

#include <functional>
#include <vector>

#include "controls/control_record.h"
#include "dialog/preview/live_preview.h"

namespace tarnwick {

enum PaneMode : std::uint8_t { kSelectionMarker = 0, kFullPreview = 1, kCroppedPreview = 2 };

// "Preview Contaner CPP": the pane that shows the picture.
//
// Left button   moves the picture under the pointer; the release sends WM_COMMAND with
//               the id and kPanEnded. With CTRL down at the press the pane calls
//               `moveOffset` at each move instead, and sends nothing.
// Right button  sends the parent kSettingsChanged, with the pane's id in lParam.
struct TPreviewContaner : TContaner {
  std::int32_t paneWidth = 0;
  std::int32_t paneHeight = 0;
  std::int32_t dragLastX = 0;  // of the pointer, at the latest event of a drag
  std::int32_t dragLastY = 0;
  std::int32_t dragShiftX = 0;  // of the present pan, drawn but not committed
  std::int32_t dragShiftY = 0;
  std::int32_t dragCurrentX = 0;
  std::int32_t dragCurrentY = 0;
  std::int32_t panX = 0;  // committed, in shown pixels
  std::int32_t panY = 0;
  std::int32_t imageX = 0;  // margin of a picture smaller than the pane
  std::int32_t imageY = 0;
  std::int32_t imageWidth = 0;
  std::int32_t imageHeight = 0;
  HBITMAP bitmap = nullptr;  // owned; null paints a cross
  std::uint8_t ctrlDrag = 0;
  bool isDragging = false;
  // An optional mark on each pixel of the image, rows from the top: 255 covers it with
  // light grey, 0 leaves it. Empty in the main dialog.
  std::vector<std::uint8_t> overlay;

  // How far the pointer has travelled since the last call, last minus now.
  std::function<void(int dx, int dy)> moveOffset;
  HCURSOR openHand = nullptr;  // not owned, as the other one
  HCURSOR closedHand = nullptr;

  TPreviewContaner() { mode = kFullPreview; }
  ~TPreviewContaner();
};

// Notification: a pan has ended.
inline constexpr WORD kPanEnded = 9;

LRESULT CALLBACK PreviewPaneProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Takes a picture into the pane's bitmap. Without memory the earlier one goes, and
// the pane stays black.
void SetPaneImage(TPreviewContaner& pane, const PanePicture& picture);

}  // namespace tarnwick
