#pragma once
#include <string>

namespace tarnwick {

// How large the preview pane shows the document, and which part of it. A scale is a
// whole number of document pixels for a shown one, so 100 % is the largest.

struct PaneSize {
  int width = 0, height = 0;
  bool operator==(const PaneSize&) const = default;
};

struct PaneZoom {
  float viewScale = 1;
  float level = -1;   // 0: the smallest view; higher is larger; -1: unset, then 100 %
  float maximum = 1;  // number of scale steps
  int panX = 0;       // of the window, in shown pixels
  int panY = 0;
  PaneSize proxy;  // the window
};

// Works the scale out of the level, fits the window to pane and document, and keeps
// the middle of what was seen in the middle.
void ApplyZoom(PaneZoom& zoom, PaneSize pane, PaneSize document);

// What became of the two zoom buttons.
struct ZoomButtons {
  bool canZoomIn = false;
  bool canZoomOut = false;
};

// One step nearer or farther; the whole document; 100 %. Each ends in ApplyZoom.
ZoomButtons ZoomIn(PaneZoom& zoom, PaneSize pane, PaneSize document);
ZoomButtons ZoomOut(PaneZoom& zoom, PaneSize pane, PaneSize document);
ZoomButtons ZoomToFit(PaneZoom& zoom, PaneSize pane, PaneSize document);
ZoomButtons ZoomToFull(PaneZoom& zoom, PaneSize pane, PaneSize document);
// After the pane has another size.
[[nodiscard]] ZoomButtons ButtonsOf(const PaneZoom& zoom);

// "33%" at a scale of 3.
[[nodiscard]] std::string PercentageText(float viewScale);

}  // namespace tarnwick
