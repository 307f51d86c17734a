#include "filter/render_effects.h"

#include <cstdint>
#include <cstring>

#include "engine/apply_run.h"
#include "engine/picture_io.h"
#include "engine/render_layers.h"
#include "engine/render_pipeline.h"
#include "filter/box_alerts.h"
#include "filter/host_colors.h"
#include "filter/host_rects.h"
#include "filter/image_mode.h"
#include "filter/layer_passes.h"
#include "filter/pass_through.h"
#include "filter/picture_job.h"
#include "filter/selectors.h"

namespace tarnwick {
namespace {

class HostProgress : public ProgressSink {
 public:
  explicit HostProgress(host::ProgressProc progress) : progress_(progress) {}
  void Report(int done, int total) override {
    if (progress_ != nullptr) progress_(done, total);
  }

 private:
  host::ProgressProc progress_;
};

void BeginState(FilterGlobals& g, const PictureJob& job, Progress progress) {
  RenderState& state = g.render;
  state = RenderState{};
  state.renderWidth = state.documentWidth = job.width;
  state.renderHeight = state.documentHeight = job.height;
  state.renderRowBytes = job.width * 4;
  state.planes = job.planes;
  // The 64-bit form goes through as if it were RGB.
  state.isCmyk = job.mode == ImageMode::kCmyk;
  state.hasSelection = job.selection != nullptr;
  state.selection = job.selection;
  state.selectionRowBytes = job.selectionRowBytes;
  state.textureFolder = job.textureFolder;
  state.alerts = job.alerts;
  state.pool = job.pool;
  state.progress = progress;
  g.selectionPlane.Free();
  if ((state.hasSelection || job.planes > 3) && BuildSelectionPlane(job, g.selectionPlane)) {
    state.selectionPlane = g.selectionPlane.Data();
    g.selectionPlaneRowBytes = job.width;
  }
}

// Gives the run's images back when it ends, whichever way.
class RunEnd {
 public:
  explicit RunEnd(FilterGlobals& g) : g_(g) {}
  ~RunEnd() {
    DestroyLayers(g_.layers, g_.render);
    g_.layers = EffectLayers{};
    g_.render = RenderState{};
    g_.selectionPlane.Free();
  }
  RunEnd(const RunEnd&) = delete;
  RunEnd& operator=(const RunEnd&) = delete;

 private:
  FilterGlobals& g_;
};

// The user's switches, which a pass may turn off while it lasts. What the layers
// derive from the texture names stays.
class SwitchesBack {
 public:
  SwitchesBack(FilterGlobals& g, const PassPlan& plan) : g_(g), plan_(plan) {}
  ~SwitchesBack() { Restore(); }
  SwitchesBack(const SwitchesBack&) = delete;
  SwitchesBack& operator=(const SwitchesBack&) = delete;

  void Restore() {
    if (plan_.backgroundHeld) g_.gParams->BackgroundUse = 1;
    if (g_.render.deferWash) g_.gParams->WashUse = 1;
  }

 private:
  FilterGlobals& g_;
  const PassPlan& plan_;
};

host::OSErr ErrorOf(ApplyOutcome outcome) {
  // A host without the colour space suite gets its picture back untouched, and
  // no error.
  if (outcome == ApplyOutcome::kDone || outcome == ApplyOutcome::kNoConverter) return host::noErr;
  return outcome == ApplyOutcome::kBadPicture ? host::filterBadParameters : host::memFullErr;
}

ApplyOutcome RenderPass(FilterGlobals& g, const PictureJob& job, PassPlan& plan) {
  RenderState& state = g.render;
  EffectSettings& settings = *g.gParams;
  const ApplyOutcome fetched = FetchSource(state, job);
  // Without a converter there is no source; all but the picture is as ever.
  if (fetched != ApplyOutcome::kDone && fetched != ApplyOutcome::kNoConverter) return fetched;
  settings.LinkNewLayer = 0;
  state.progress.Report(10);
  CreateLayers(g.layers, state, settings, g.session);
  SwitchesBack back(g, plan);
  DecideBackground(g, plan);
  DecideMask(g, plan);
  if (plan.writesMask) {
    WriteMask(g, job);
    return ApplyOutcome::kDone;
  }
  RenderPipeline(g.layers, state, settings, plan.view);
  back.Restore();
  settings.LinkNewBackground = 0;
  settings.LinkNewSurface = 0;
  const ApplyOutcome written = fetched == ApplyOutcome::kDone ? WriteResult(state, job) : fetched;
  state.progress.Report(state.progress.base, 0);
  KeepForLaterPass(g);
  return written;
}

}  // namespace

void CopyInputToOutput(const PictureJob& job) {
  const auto bytes = static_cast<std::size_t>(job.width) * static_cast<std::size_t>(job.planes);
  for (int y = 0; y < job.height; ++y) {
    std::memmove(job.out + y * job.outRowBytes, job.in + y * job.inRowBytes, bytes);
  }
}

void RenderEffects(FilterGlobals& g) {
  const host::FilterRecord& record = *g.gFilterRecord;
  if (!CheckImageMode(g)) return;
  PictureJob job = JobOf(record, GetOutRect(record));
  if (!IsRenderable(job) || job.in == nullptr || job.out == nullptr) {
    *g.gResult = host::filterBadParameters;
    return;
  }
  HostProgress sink(record.progressProc);
  BoxAlerts alerts(g.ownerWindow);
  HostRowConverter converter(job.mode == ImageMode::kCmyk ? g.gBasicSuite : nullptr);
  HostColorServices colors(record.colorServices);
  ThreadPool pool(0);
  job.alerts = &alerts;
  job.pool = &pool;
  job.converter = converter.IsThere() ? &converter : nullptr;
  job.textureFolder = g.folders.dataFolder;
  Progress progress;
  progress.sink = &sink;

  ReadUiFile(g, *g.gParams);
  g.render.layerOutputMode = LayerOutputMode::kNormal;
  PassPlan plan = RoutePass(g);
  if (plan.passThrough) {
    CopyInputToOutput(job);
    progress.Report(progress.base, 0);
    *g.gResult = host::noErr;
    return;
  }
  const LayerOutputMode mode = g.render.layerOutputMode;
  const RunEnd end(g);
  BeginState(g, job, progress);
  g.render.layerOutputMode = mode;
  g.render.colorServices = &colors;
  *g.gResult = ErrorOf(RenderPass(g, job, plan));
}

}  // namespace tarnwick
