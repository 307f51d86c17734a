#pragma once
#include <cstdint>
#include <functional>
#include <vector>

#include "base/progress.h"
#include "base/thread_pool.h"
#include "dialog/models/kept_layers.h"
#include "dialog/models/pane_zoom.h"
#include "dialog/preview/preview_pixels.h"
#include "dialog/preview/unfiltered_document.h"
#include "engine/view_mode.h"
#include "filter/box_alerts.h"
#include "filter/filter_globals.h"
#include "filter/host_colors.h"

namespace tarnwick {

// The dialog's pages, as the tab control counts them.
enum class EffectPage : std::uint8_t { kBasic = 0, kWash = 1, kSurface = 2, kBackground = 3 };

// What a render leaves in the bar below the pane: the picker has it for itself.
enum class PreviewBar : std::uint8_t { kCleared, kKept };

// What the pane is to show; see BuildPaneImage.
struct PanePicture {
  int imageX = 0, imageY = 0;  // margin of a picture smaller than the pane
  int imageWidth = 0, imageHeight = 0;
  // Bottom row first, blue, green, red; the width is a multiple of 4, so no row is
  // padded. Empty: there is nothing to show, and the pane paints its cross.
  std::vector<std::uint8_t> bitmap;
};

// Points of the document, a row of them after the other.
struct DocumentSamples {
  // Red, green, blue and the document's own alpha. Empty: there is no document.
  std::vector<std::uint8_t> pixels;
  std::vector<std::uint8_t> selection;  // a byte each; empty: everything is selected
};

// The preview without its window: zoom and pan, what it asks of the host, the layers
// while the dialog is up, and the pane's picture.
//
// Layers   stand in g.layers and the render's values in g.render. The window calls the
//          setters of engine/layer_edit.h, coverage.h and wash_edge.h on them itself,
//          then Render and BuildPaneImage.
// Host     Each change of window or scale asks the host anew and leaves its outcome
//          in *g.gResult; after a failure there is no picture. What stands in the
//          host's output becomes the document with its next request, so nothing is
//          ever written there: the result has a buffer of the same layout.
// Memory   without it a stage, or the picture, is left out. Nothing throws.
// Threads  the host's one.
class LivePreview {
 public:
  // `progress` may be null. Owns neither; g.DialogActive is the caller's. Alerts
  // about textures belong to the window that g.ownerWindow names by now.
  LivePreview(FilterGlobals& g, ProgressSink* progress);
  // Gives back the layers, the render's buffers and the copies of the document.
  ~LivePreview();
  LivePreview(const LivePreview&) = delete;
  LivePreview& operator=(const LivePreview&) = delete;

  // Everything before the first Render, at 100 %.
  void Open(PaneSize pane);

  // True if the pane has another size than the window that is shown, which then
  // takes that size: Resized is due. (A document smaller than the pane always asks.)
  [[nodiscard]] bool FitProxyToPane(PaneSize pane);

  // Each fetches the new window and makes stale what hangs on it; Render is due.
  // FitProxyToPane is part of all but Resized, which comes after it.
  ZoomButtons ZoomIn(PaneSize pane);
  ZoomButtons ZoomOut(PaneSize pane);
  ZoomButtons ZoomToFit(PaneSize pane);
  ZoomButtons ZoomToFull(PaneSize pane);
  ZoomButtons Resized(PaneSize pane);
  // A drag has moved the picture by so many shown pixels and ended.
  void Pan(int shiftX, int shiftY);

  // A drag that moves the texture under the picture: the pointer's travel in shown
  // pixels, last minus now. Takes the layer of the page and the page's view, and puts
  // its offset into the settings. False when nothing moves (Basic, or the original).
  bool MoveActiveOffset(EffectPage page, ViewMode view, int dx, int dy);
  // Called by MoveActiveOffset with the kind that has moved, for what is linked to it.
  void SetLinkPropagation(std::function<void(LayerKind)> propagate);
  // The same for a kind that has changed in another way.
  void PropagateLinks(LayerKind kind);

  // Renders `view` of what is shown; only what is stale is computed. Clears the
  // markers of new layers, and *g.gResult unless the document's mode is unsupported,
  // which a box tells.
  void Render(ViewMode view, PreviewBar bar = PreviewBar::kCleared);

  // The last Render as the pane shows it.
  [[nodiscard]] PanePicture BuildPaneImage(PaneSize pane) const;

  // The document as it was opened, without any effect, at each of `columns` in each of
  // `rows` of its full size; places beyond it are its last ones.
  [[nodiscard]] DocumentSamples SampleDocument(const std::vector<std::ptrdiff_t>& columns,
                                               const std::vector<std::ptrdiff_t>& rows) const;

  [[nodiscard]] const PaneZoom& Zoom() const { return zoom_; }
  [[nodiscard]] PaneSize Document() const { return document_; }

  // Layers anew from the settings, for a preset or a reset: all but those that stay.
  // Derives the three group switches from the texture names.
  void RemakeLayers(KeptLayers kept = {});
  // The second of a pair from the settings: made when it is added, dropped when it is
  // deleted. The caller sets SecondWashExists or SecondSurfaceExists.
  void MakeSecondWash();
  void DropSecondWash();
  void MakeSecondSurface();
  void DropSecondSurface();
  // A control of the surface has changed that no layer holds.
  void SurfaceChanged() { g_.render.surfaceStale = true; }

 private:
  void BeginState();
  void FetchWindow();
  void MarkWindowStale(bool scaleChanged);
  [[nodiscard]] ZoomButtons Show(ZoomButtons buttons);

  FilterGlobals& g_;
  ProgressSink* progress_;
  BoxAlerts alerts_;
  ThreadPool pool_;
  HostColorServices colors_;
  std::function<void(LayerKind)> propagate_;
  PaneSize document_;
  PaneSize pane_;  // as it was last told
  PaneZoom zoom_;
  PreviewPixels pixels_;
  UnfilteredDocument unfiltered_;
};

}  // namespace tarnwick
