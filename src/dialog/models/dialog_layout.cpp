#include "dialog/models/dialog_layout.h"

#include "controls/models/dpi_scale.h"

namespace tarnwick {
namespace {

struct ButtonMetrics {
  int height, margin, zoomShift;
};

ButtonMetrics MetricsFor(int dpi) {
  if (dpi >= 216) return {38, 13, -4};
  if (dpi >= 144) return {28, 18, 1};
  return {22, 20, 5};
}

struct TextSize {
  int width, height;
};

TextSize PercentageSize(int dpi) {
  if (dpi <= 96) return {26, 12};
  return dpi == 120 ? TextSize{34, 14} : TextSize{38, 16};
}

// A bitmap's rows are packed in fours.
int PaneWidthOf(int width) {
  return width < 1 ? 4 : (width + 3) / 4 * 4;
}

}  // namespace

DialogLayout LayoutDialog(const DialogFrame& frame) {
  const int w = frame.width;
  const int h = frame.height;
  const int left = frame.previewLeft;
  const ButtonMetrics button = MetricsFor(frame.dpi);
  const int half = (w - left + 9) / 2;
  const int center = left - 9 + half;
  DialogLayout layout;
  layout.headerTileWidth = w - 787;
  layout.rightHeader = {w - 334, 0, 334, 71};
  layout.viewAll = {w - 202, 19, 140, 40};
  layout.manual = {w - 328, 19, 127, 40};
  layout.automatic = {453, 9, 118, 50};
  layout.about = {23, 18, 400, 35};
  layout.tabs = {10, 80, left - 19, h - 89};

  const int buttonTop = h - button.margin - button.height + 5;
  layout.ok = {center + 91, buttonTop, 89, button.height};
  layout.cancel = {center - 180, buttonTop, 89, button.height};
  const int zoomTop = h - 24 + (button.zoomShift - button.margin);
  layout.zoomIn = {center + 27, zoomTop, 30, 26};
  layout.zoomOut = {center - 57, zoomTop, 30, 26};
  const TextSize text = PercentageSize(frame.dpi);
  layout.percentage = {center - text.width / 2, h - button.height - 21, text.width, text.height};
  layout.progress = {left + 15, h - 57, 2 * half - 48, 10};

  layout.previewRight = w - 13;
  layout.previewBottom = h - 71;
  layout.upperStripTop = frame.previewTop;
  layout.lowerStripTop = h - 104;
  layout.pane = {left, frame.previewTop + kStripHeight, PaneWidthOf(layout.previewRight - left),
                 layout.previewBottom - frame.previewTop - 2 * kStripHeight};

  const auto labelWidth = static_cast<int>(210.0F * DpiFactorOf(frame.dpi));
  layout.optionBox = {left + 20, h - 98, 20, 20};
  layout.optionLabel = {left + 42, h - 98, labelWidth, 20};
  layout.backgroundLabel = {left + 42, h - 98, labelWidth + 40, 20};
  layout.drawer = {0, 80, left - 9, h - 89};
  return layout;
}

int PreviewLeftFor(int templateLeft, int dpi) {
  if (dpi <= 96) return templateLeft;
  return templateLeft - (dpi == 120 ? 70 : 15);
}

TrackSize SmallestTrackSize(int dpi) {
  const int times = dpi / 96;
  return {923 * times, 704 * times};
}

}  // namespace tarnwick
