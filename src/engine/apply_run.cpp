#include "engine/apply_run.h"

#include <algorithm>
#include <new>
#include <vector>

#include "base/checked_size.h"
#include "engine/effect_layer.h"
#include "engine/picture_io.h"
#include "engine/render_layers.h"
#include "engine/render_pipeline.h"

namespace tarnwick {
namespace {

bool IsKnownMode(ImageMode mode) {
  return mode == ImageMode::kRgb || mode == ImageMode::kRgb48 || mode == ImageMode::kCmyk ||
         mode == ImageMode::kCmyk64;
}

ApplyOutcome CheckJob(const PictureJob& job) {
  if (!IsKnownMode(job.mode)) return ApplyOutcome::kUnsupportedMode;
  const int leastPlanes = job.mode == ImageMode::kCmyk ? 4 : 1;
  if (!IsPictureSize(job.width, job.height) || job.planes < leastPlanes || job.in == nullptr ||
      job.out == nullptr) {
    return ApplyOutcome::kBadPicture;
  }
  return ApplyOutcome::kDone;
}

// State, layers and planes of one run.
struct RunData {
  RenderState state;
  EffectLayers layers;
  PageBuffer<std::uint8_t> selectionPlane;
  std::vector<std::uint8_t> shownSelection;  // a preview's, at render size
};

void Begin(RunData& run, const PictureJob& job, int renderWidth, int renderHeight) {
  RenderState& state = run.state;
  state.renderWidth = renderWidth;
  state.renderHeight = renderHeight;
  state.renderRowBytes = renderWidth * 4;
  state.documentWidth = job.width;
  state.documentHeight = job.height;
  state.planes = job.planes;
  // The 64-bit form goes through as if it were RGB.
  state.isCmyk = job.mode == ImageMode::kCmyk;
  state.hasSelection = job.selection != nullptr;
  state.selection = job.selection;
  state.selectionRowBytes = job.selectionRowBytes;
  state.textureFolder = job.textureFolder;
  state.alerts = job.alerts;
  state.textureCache = job.textureCache;
  state.progress.sink = job.progress;
  state.pool = job.pool;
  if (state.hasSelection || job.planes > 3) {
    // Without memory the washes take the whole picture as selected.
    if (BuildSelectionPlane(job, run.selectionPlane)) {
      state.selectionPlane = run.selectionPlane.Data();
    }
  }
}

ApplyOutcome RenderAll(RunData& run, EffectSettings& settings, SettingsSession& session,
                       const PictureJob& job, ViewMode view) {
  RenderState& state = run.state;
  if (view == ViewMode::kOriginal) {
    CopyOriginal(state, job);
    return ApplyOutcome::kDone;
  }
  ApplyOutcome outcome = FetchSource(state, job);
  if (outcome != ApplyOutcome::kDone) return outcome;
  state.progress.Report(10);
  CreateLayers(run.layers, state, settings, session);
  RenderPipeline(run.layers, state, settings, view);
  outcome = WriteResult(state, job);
  state.progress.Report(state.progress.base, 0);
  return outcome;
}

// Pages that cannot be had leave a stage out; when not even a row's worth of
// working memory is left, nothing is written.
template <typename Work>
ApplyOutcome WithinMemory(const Work& work) {
  try {
    return work();
  } catch (const std::bad_alloc&) {
    return ApplyOutcome::kOutOfMemory;
  }
}

// The selection below each rendered pixel.
void ShowSelection(RunData& run, const PictureJob& job) {
  RenderState& state = run.state;
  if (!state.hasSelection) return;
  run.shownSelection.resize(state.PixelCount());
  const auto along = [&](int origin, int i, int size) {
    const auto at = static_cast<int>(static_cast<float>(origin + i) * state.viewScale);
    return std::clamp(at, 0, size - 1);
  };
  std::uint8_t* out = run.shownSelection.data();
  for (int y = 0; y < state.renderHeight; ++y) {
    const std::uint8_t* const row =
        job.selection + along(state.viewOriginY, y, job.height) * job.selectionRowBytes;
    for (int x = 0; x < state.renderWidth; ++x) {
      *out++ = row[along(state.viewOriginX, x, job.width)];
    }
  }
  state.selection = run.shownSelection.data();
  state.selectionRowBytes = state.renderWidth;
}

}  // namespace

ApplyOutcome ApplyToPicture(EffectSettings& settings, SettingsSession& session,
                            const PictureJob& job) {
  const ApplyOutcome check = CheckJob(job);
  if (check != ApplyOutcome::kDone) return check;
  return WithinMemory([&] {
    RunData run;
    Begin(run, job, job.width, job.height);
    return RenderAll(run, settings, session, job, ViewMode::kComposite);
  });
}

PreviewWindow WholeWindow(int pictureWidth, int pictureHeight, int scale) {
  PreviewWindow window;
  window.scale = std::max(scale, 1);
  window.width = std::max(pictureWidth / window.scale, 1);
  window.height = std::max(pictureHeight / window.scale, 1);
  return window;
}

ApplyOutcome RenderPreview(EffectSettings& settings, SettingsSession& session,
                           const PictureJob& job, const PreviewWindow& window) {
  const ApplyOutcome check = CheckJob(job);
  if (check != ApplyOutcome::kDone) return check;
  const auto inDocument = [](int at) { return at >= 0 && at <= kMaxPictureSide; };
  if (!IsPictureSize(window.width, window.height) || window.scale < 1 ||
      window.scale > kMaxPictureSide || !inDocument(window.x) || !inDocument(window.y)) {
    return ApplyOutcome::kBadPicture;
  }
  return WithinMemory([&] {
    RunData run;
    run.state.previewMode = true;
    run.state.viewScale = static_cast<float>(window.scale);
    run.state.viewOriginX = window.x;
    run.state.viewOriginY = window.y;
    run.state.view = window.view;
    Begin(run, job, window.width, window.height);
    ShowSelection(run, job);
    return RenderAll(run, settings, session, job, window.view);
  });
}

}  // namespace tarnwick
