#include "engine/render_pipeline.h"

#include <cstring>

#include "engine/background_render.h"
#include "engine/plain_copy.h"
#include "engine/render_buffers.h"
#include "engine/surface_render.h"
#include "engine/wash_edge.h"
#include "engine/wash_render.h"
#include "engine/working_texture.h"
#include "textures/texture_path.h"

namespace tarnwick {
namespace {

struct Run {
  EffectLayers& layers;
  RenderState& state;
  const EffectSettings& settings;
  ViewMode view;

  [[nodiscard]] bool HasWash() const { return settings.WashUse != 0 || state.deferWash; }
  [[nodiscard]] bool Shows(ViewMode alone) const {
    return view == ViewMode::kComposite || view == alone;
  }
  [[nodiscard]] bool IsNamed(const EffectLayer& layer) const {
    return layer.fileName != TexturePath(state.textureFolder, kNoTextureName);
  }
  void Reach(double base) const {
    state.progress.base = base;
    state.progress.Report(base);
  }
};

void PrepareSurfaceSave(const Run& run) {
  const EffectSettings& s = run.settings;
  RenderState& state = run.state;
  state.keepSurfaceSave = run.HasWash() && s.SurfaceUse != 0 && s.SurfaceEntire != 0 &&
                          s.SurfaceIncludeWashArea != 0 && state.HasTransparency();
  state.surfaceSave.Free();
  if (state.keepSurfaceSave) (void)state.surfaceSave.Allocate(state.PixelCount() * 4);
}

void PrepareWashEdges(const Run& run) {
  const int washes = run.settings.SecondWashExists != 0 ? 2 : 1;
  for (int i = 0; i < washes; ++i) {
    EffectLayer& wash = run.layers.washes[static_cast<std::size_t>(i)];
    if (wash.edgeDirty) BuildEdgeMap(wash, run.state);
  }
}

bool PrepareSurface(const Run& run, std::size_t index) {
  EffectLayer& surface = run.layers.surfaces[index];
  if (!run.IsNamed(surface)) return false;
  if (surface.textureDirty) PrepareWorkingTexture(surface, run.state);
  return true;
}

void RunSurfaces(const Run& run) {
  RenderState& state = run.state;
  const bool wanted = run.settings.SurfaceUse != 0 &&
                      (run.view == ViewMode::kComposite || run.view == ViewMode::kSurfaceOne ||
                       run.view == ViewMode::kSurfaceTwo);
  if (!wanted) {
    state.progress.budget = 50 - state.progress.base;
    CopySourceToOutput(run.layers, state, run.settings);
    return;
  }
  bool first = false;
  if (run.Shows(ViewMode::kSurfaceOne)) {
    first = PrepareSurface(run, 0);
    if (first) run.Reach(20);
  }
  const bool second = run.settings.SecondSurfaceExists != 0 && run.Shows(ViewMode::kSurfaceTwo) &&
                      PrepareSurface(run, 1);
  run.Reach(30);
  if ((!first && !second) || !BeginSurfaceResult(state)) {
    CopySourceToOutput(run.layers, state, run.settings);
    return;
  }
  state.surfaceStale = true;
  ResetOutputAlpha(state);
  state.progress.budget = 10;
  ComposeSurface(run.layers, state, run.settings,
                 ReliefHeights(run.layers, state, run.settings, first, second));
  run.Reach(40);
  MergeSurfaceResult(state);
}

void RunWashes(const Run& run) {
  if (run.settings.WashUse == 0) return;
  Progress& progress = run.state.progress;
  if (run.Shows(ViewMode::kWashOne)) {
    progress.budget = 60 - progress.base;
    RenderWash(run.layers.washes[0], run.state);
    run.Reach(60);
  }
  if (run.settings.SecondWashExists != 0 && run.Shows(ViewMode::kWashTwo)) {
    progress.budget = 70 - progress.base;
    RenderWash(run.layers.washes[1], run.state);
  }
}

void RunBackground(const Run& run) {
  EffectLayer& background = run.layers.background;
  RenderState& state = run.state;
  if (!run.IsNamed(background)) return;
  if (background.textureDirty) {
    state.progress.budget = 10;
    PrepareWorkingTexture(background, state);
    background.textureDirty = false;
    state.progress.base = 80;
  }
  state.progress.Report(state.progress.base);
  state.progress.budget = 90 - state.progress.base;
  RenderBackgroundTone(background, state, run.settings);
  run.Reach(90);
  state.progress.budget = 100 - state.progress.base;
  ComposeBackground(background, state, run.settings, run.view);
}

}  // namespace

void RenderPipeline(EffectLayers& layers, RenderState& state, const EffectSettings& settings,
                    ViewMode view) {
  state.view = view;
  const Run run{layers, state, settings, view};
  run.Reach(10);
  PrepareSurfaceSave(run);
  if (view == ViewMode::kBackground) {
    if (state.outputPixels) std::memset(state.outputPixels.Data(), 0, state.outputPixels.Size());
  } else {
    if (run.HasWash()) PrepareWashEdges(run);
    RunSurfaces(run);
    if (state.layerOutputMode == LayerOutputMode::kSurfaceAlone &&
        settings.SurfaceIncludeWashArea != 0 && settings.SurfaceEntire != 0) {
      state.progress.Report(state.progress.base);
      return;
    }
    run.Reach(50);
    RunWashes(run);
  }
  run.Reach(70);
  if (state.layerOutputMode == LayerOutputMode::kSurfaceAlone) {
    state.progress.Report(state.progress.base);
    return;
  }
  if (settings.BackgroundUse != 0) RunBackground(run);
  run.Reach(100);
}

}  // namespace tarnwick
