#include "dialog/models/pane_zoom.h"

#include <algorithm>
#include <cmath>

namespace tarnwick {
namespace {

int Shown(int size, float scale) {
  return static_cast<int>(static_cast<float>(size) / scale);
}

// How many times the document is as large as the window, the larger way.
float RatioOf(PaneSize document, PaneSize window) {
  const auto ratio = [](int whole, int part) {
    return static_cast<float>(whole) / static_cast<float>(std::max(part, 1));
  };
  return std::max(ratio(document.height, window.height), ratio(document.width, window.width));
}

int KeptInside(int pan, int shown, int pane) {
  return std::max(std::min(pan, shown - pane), 0);
}

}  // namespace

void ApplyZoom(PaneZoom& zoom, PaneSize pane, PaneSize document) {
  const PaneSize before = {Shown(document.width, zoom.viewScale),
                           Shown(document.height, zoom.viewScale)};
  const PaneSize window = zoom.proxy == PaneSize{} ? pane : zoom.proxy;
  zoom.maximum = std::max(std::ceil(RatioOf(document, window)), 1.0F);
  if (zoom.level < 0) zoom.level = zoom.maximum - 1;
  zoom.viewScale = std::clamp(std::trunc(zoom.maximum - zoom.level), 1.0F, zoom.maximum);
  const PaneSize after = {Shown(document.width, zoom.viewScale),
                          Shown(document.height, zoom.viewScale)};
  zoom.proxy = {std::min(pane.width, after.width), std::min(pane.height, after.height)};
  zoom.panX = std::max(zoom.panX + (after.width - before.width) / 2, 0);
  zoom.panY = std::max(zoom.panY + (after.height - before.height) / 2, 0);
  if (zoom.level == 0) zoom.panX = zoom.panY = 0;
  zoom.panX = KeptInside(zoom.panX, after.width, pane.width);
  zoom.panY = KeptInside(zoom.panY, after.height, pane.height);
}

ZoomButtons ZoomIn(PaneZoom& zoom, PaneSize pane, PaneSize document) {
  zoom.proxy = pane;
  zoom.level += 1;
  ZoomButtons buttons{true, true};
  if (zoom.level >= zoom.maximum - 1) {
    zoom.level = zoom.maximum - 1;
    buttons.canZoomIn = false;
  }
  ApplyZoom(zoom, pane, document);
  return buttons;
}

ZoomButtons ZoomOut(PaneZoom& zoom, PaneSize pane, PaneSize document) {
  zoom.proxy = pane;
  zoom.level -= 1;
  ZoomButtons buttons{true, true};
  if (zoom.level <= 0) {
    zoom.level = 0;
    buttons.canZoomOut = false;
  }
  ApplyZoom(zoom, pane, document);
  return buttons;
}

ZoomButtons ZoomToFit(PaneZoom& zoom, PaneSize pane, PaneSize document) {
  zoom.proxy = pane;
  zoom.maximum = std::trunc(RatioOf(document, pane));
  zoom.level = 0;
  ApplyZoom(zoom, pane, document);
  return {zoom.viewScale != 1, false};
}

ZoomButtons ZoomToFull(PaneZoom& zoom, PaneSize pane, PaneSize document) {
  zoom.proxy = pane;
  // Set first, so the pan stays what it is in shown pixels.
  zoom.viewScale = 1;
  zoom.level = -1;
  ApplyZoom(zoom, pane, document);
  return {false, zoom.maximum != 1};
}

ZoomButtons ButtonsOf(const PaneZoom& zoom) {
  return {zoom.viewScale != 1, zoom.level > 0};
}

std::string PercentageText(float viewScale) {
  return std::to_string(static_cast<int>(100.0F / viewScale)) + "%";
}

}  // namespace tarnwick
