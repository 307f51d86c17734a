#include "dialog/preview/live_preview.h"

#include <algorithm>
#include <new>
#include <utility>

#include "engine/layer_edit.h"
#include "engine/layer_setup.h"
#include "engine/render_buffers.h"
#include "engine/render_layers.h"
#include "engine/render_pipeline.h"
#include "filter/document_layers.h"
#include "filter/document_pixels.h"
#include "filter/document_queries.h"
#include "filter/host_rects.h"
#include "filter/image_mode.h"

namespace tarnwick {
namespace {

// Window procedures call all of this: what lacks memory is left out.
template <typename Work>
void WithinMemory(FilterGlobals& g, const Work& work) {
  try {
    work();
  } catch (const std::bad_alloc&) {
    *g.gResult = host::memFullErr;
  }
}

}  // namespace

LivePreview::LivePreview(FilterGlobals& g, ProgressSink* progress)
    : g_(g),
      progress_(progress),
      alerts_(g.ownerWindow),
      pool_(0),
      colors_(g.gFilterRecord->colorServices) {}

LivePreview::~LivePreview() {
  DestroyLayers(g_.layers, g_.render);
  g_.layers = EffectLayers{};
  g_.render = RenderState{};
  g_.selectionPlane.Free();
  g_.documentPixels.Free();
  g_.selectionPlaneRowBytes = g_.documentPixelsWidth = g_.documentPixelsHeight = 0;
  FreeDocumentLayers(g_);
}

void LivePreview::BeginState() {
  const host::FilterRecord& record = *g_.gFilterRecord;
  RenderState& state = g_.render;
  state = RenderState{};
  state.previewMode = true;
  state.documentWidth = document_.width;
  state.documentHeight = document_.height;
  state.planes = record.planes;
  // The 64-bit form goes through as if it were RGB.
  state.isCmyk = record.imageMode == host::plugInModeCMYKColor;
  state.textureFolder = g_.folders.dataFolder;
  state.alerts = &alerts_;
  state.colorServices = &colors_;
  state.progress.sink = progress_;
  state.pool = &pool_;
}

void LivePreview::Open(PaneSize pane) {
  const Rect picture = GetFilterRect(*g_.gFilterRecord);
  document_ = {picture.Width(), picture.Height()};
  zoom_ = PaneZoom{};
  pane_ = pane;
  WithinMemory(g_, [&] {
    BeginState();
    (void)ReadDocumentLayers(g_, DepthChannel(*g_.gFilterRecord));
    // The whole of it once at full size, for the masks that follow its selection.
    host::FilterRecord& record = *g_.gFilterRecord;
    record.inLoPlane = record.outLoPlane = 0;
    FetchDocumentAtZoom(g_);
    pixels_.KeepSelection(g_);
    unfiltered_.Keep(g_);
    const bool isMasked = record.haveMask != 0 || record.planes > 3;
    if (isMasked) g_.render.selectionPlane = g_.selectionPlane.Data();
    ApplyZoom(zoom_, pane, document_);
    FetchWindow();
    CreateLayers(g_.layers, g_.render, *g_.gParams, g_.session);
  });
}

// The picture of the window, and its masks.
void LivePreview::FetchWindow() {
  WithinMemory(g_, [&] {
    pixels_.Request(g_, zoom_);
    pixels_.FetchSource(g_);
  });
}

void LivePreview::MarkWindowStale(bool scaleChanged) {
  MarkTexturesDirty(g_.layers);
  MarkCoverageDirty(g_.layers);
  for (EffectLayer& wash : g_.layers.washes) {
    wash.edgeSamples.Free();
    wash.samplesWhole = false;
    // The edge's blur goes by the scale: kept, it would show the softness of another.
    if (scaleChanged && wash.edgeBlurRadius != 0) wash.edgeDirty = true;
  }
  AllocateSurfaceBuffers(g_.render);
}

ZoomButtons LivePreview::Show(ZoomButtons buttons) {
  const float before = g_.render.viewScale;
  FetchWindow();
  MarkWindowStale(g_.render.viewScale != before);
  return buttons;
}

bool LivePreview::FitProxyToPane(PaneSize pane) {
  pane_ = pane;
  return std::exchange(zoom_.proxy, pane) != pane;
}

ZoomButtons LivePreview::ZoomIn(PaneSize pane) {
  pane_ = pane;
  return Show(tarnwick::ZoomIn(zoom_, pane, document_));
}

ZoomButtons LivePreview::ZoomOut(PaneSize pane) {
  pane_ = pane;
  return Show(tarnwick::ZoomOut(zoom_, pane, document_));
}

ZoomButtons LivePreview::ZoomToFit(PaneSize pane) {
  pane_ = pane;
  return Show(tarnwick::ZoomToFit(zoom_, pane, document_));
}

ZoomButtons LivePreview::ZoomToFull(PaneSize pane) {
  pane_ = pane;
  return Show(tarnwick::ZoomToFull(zoom_, pane, document_));
}

ZoomButtons LivePreview::Resized(PaneSize pane) {
  pane_ = pane;
  ApplyZoom(zoom_, pane, document_);
  return Show(ButtonsOf(zoom_));
}

void LivePreview::Pan(int shiftX, int shiftY) {
  zoom_.panX -= shiftX;
  zoom_.panY -= shiftY;
  ApplyZoom(zoom_, pane_, document_);
  (void)Show({});
}

void LivePreview::Render(ViewMode view, PreviewBar bar) {
  EffectSettings& settings = *g_.gParams;
  RenderState& state = g_.render;
  settings.LinkNewBackground = 0;
  settings.LinkNewSurface = 0;
  settings.LinkNewLayer = 0;
  settings.LinkNewWash = 0;
  if (!CheckImageMode(g_)) return;
  *g_.gResult = host::noErr;
  WithinMemory(g_, [&] {
    if (view == ViewMode::kOriginal) {
      pixels_.WriteOriginal(g_);
    } else if (state.sourcePixels && state.outputPixels) {
      RenderPipeline(g_.layers, state, settings, view);
      pixels_.WriteRender(g_);
    }
  });
  // A preview has no pass to come that would take it.
  state.surfaceSave.Free();
  state.keepSurfaceSave = false;
  state.progress.base = 0;
  if (bar == PreviewBar::kCleared) state.progress.Report(0);
}

PanePicture LivePreview::BuildPaneImage(PaneSize pane) const {
  PanePicture picture;
  const PaneSource source = pixels_.Result();
  const PaneSize size = pixels_.Size();
  if (source.samples == nullptr) return picture;
  const int width = std::min(size.width, pane.width) & ~3;
  const int height = std::min(size.height, pane.height);
  try {
    picture.bitmap = BuildPaneBitmap(source, width, height, pixels_.Backdrop(), size.width);
  } catch (const std::bad_alloc&) {
    return picture;
  }
  if (picture.bitmap.empty()) return picture;
  picture.imageWidth = width;
  picture.imageHeight = height;
  picture.imageX = std::max((pane.width - width) / 2, 0);
  picture.imageY = std::max((pane.height - height) / 2, 0);
  return picture;
}

DocumentSamples LivePreview::SampleDocument(const std::vector<std::ptrdiff_t>& columns,
                                            const std::vector<std::ptrdiff_t>& rows) const {
  return {unfiltered_.Sample(g_, columns, rows), pixels_.SampleSelection(columns, rows)};
}

void LivePreview::RemakeLayers(KeptLayers kept) {
  EffectLayers& layers = g_.layers;
  EffectSettings& settings = *g_.gParams;
  // Dropped before any is made, so that their memory is there for the new ones.
  if (!kept.washes) layers.washes = {};
  if (!kept.surfaces) layers.surfaces = {};
  if (!kept.background) layers.background = EffectLayer{};
  WithinMemory(g_, [&] {
    if (!kept.washes) {
      (void)ConfigureWash(layers.washes[0], g_.render, settings, g_.session, false);
      if (settings.SecondWashExists != 0) MakeSecondWash();
    }
    if (!kept.background) (void)ConfigureBackground(layers.background, g_.render, settings);
    if (!kept.surfaces) {
      (void)ConfigureSurface(layers.surfaces[0], g_.render, settings, g_.session, false);
      if (settings.SecondSurfaceExists != 0) MakeSecondSurface();
    }
    AllocateSurfaceBuffers(g_.render);
  });
  DeriveSwitches(settings);
}

void LivePreview::MakeSecondWash() {
  WithinMemory(g_, [&] {
    g_.layers.washes[1] = EffectLayer{};
    (void)ConfigureWash(g_.layers.washes[1], g_.render, *g_.gParams, g_.session, true);
  });
}

void LivePreview::DropSecondWash() {
  g_.layers.washes[1] = EffectLayer{};
}

void LivePreview::MakeSecondSurface() {
  WithinMemory(g_, [&] {
    g_.layers.surfaces[1] = EffectLayer{};
    (void)ConfigureSurface(g_.layers.surfaces[1], g_.render, *g_.gParams, g_.session, true);
    SurfaceChanged();
  });
}

void LivePreview::DropSecondSurface() {
  g_.layers.surfaces[1] = EffectLayer{};
  SurfaceChanged();
}

}  // namespace tarnwick
