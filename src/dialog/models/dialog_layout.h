#pragma once

namespace tarnwick {

// Where everything of the main dialog lies. Pixels of its client area.

struct Place {
  int x = 0, y = 0, width = 0, height = 0;
  bool operator==(const Place&) const = default;
};

struct DialogFrame {
  int width = 0, height = 0;  // of the client area
  int dpi = 96;
  int previewLeft = 0;  // frame of the pane; fixed while the dialog is there
  int previewTop = 0;
};

struct DialogLayout {
  int headerTileWidth = 0;  // how far the header's tile is repeated
  Place rightHeader, viewAll, manual, automatic, about;
  Place tabs;
  Place ok, cancel, zoomIn, zoomOut, percentage, progress;
  int previewRight = 0, previewBottom = 0;
  int upperStripTop = 0;  // the two shadow strips, kStripHeight high
  int lowerStripTop = 0;
  Place pane;
  Place optionBox, optionLabel, backgroundLabel;
  Place drawer;
};

inline constexpr int kStripHeight = 33;

[[nodiscard]] DialogLayout LayoutDialog(const DialogFrame& frame);

// The left edge of the pane's frame as the template gives it, moved on fine screens.
[[nodiscard]] int PreviewLeftFor(int templateLeft, int dpi);

// A length of the design where fonts are `scale` times as large, to the nearest pixel.
[[nodiscard]] inline int ScaledLength(int length, float scale) {
  return static_cast<int>(static_cast<float>(length) * scale + 0.5F);
}

// The smallest frame that a user can drag the dialog to.
struct TrackSize {
  int width, height;
};
[[nodiscard]] TrackSize SmallestTrackSize(int dpi);

}  // namespace tarnwick
