#include "filter/layer_passes.h"

#include <utility>

#include "base/page_memory.h"
#include "engine/wash_render.h"
#include "filter/pass_through.h"
#include "filter/saved_blocks.h"

namespace tarnwick {
namespace {

bool HasMaskPlane(const RenderState& state) {
  return state.planes >= (state.isCmyk ? 6 : 5);
}

// Moves a buffer into a settings field, from where a later pass takes it. What
// the field held before was never used; its pages go back.
void Keep(PageBuffer<std::uint8_t>& buffer, std::uintptr_t& field) {
  const SavedBlock old = TakeBlock(field);
  FreePages(old.pages, old.bytes);
  field = 0;
  const std::size_t bytes = buffer.Size();
  std::uint8_t* const pages = buffer.Detach();
  if (SaveBlock(pages, bytes)) {
    field = reinterpret_cast<std::uintptr_t>(pages);
  } else {
    FreePages(pages, bytes);
  }
}

// The other way round. A block of another size belongs to another picture.
bool TakeKept(std::uintptr_t& field, std::size_t bytes, PageBuffer<std::uint8_t>& buffer) {
  const SavedBlock block = TakeBlock(std::exchange(field, 0));
  if (block.pages == nullptr || block.bytes != bytes) {
    FreePages(block.pages, block.bytes);
    return false;
  }
  buffer.Adopt(static_cast<std::uint8_t*>(block.pages), block.bytes);
  return true;
}

}  // namespace

PassPlan RoutePass(FilterGlobals& g) {
  PassPlan plan;
  EffectSettings& s = *g.gParams;
  g.render.layerOutputMode = LayerOutputMode::kNormal;
  if (!g.HostHasActions) return plan;
  if (s.SurfaceUse != 0 && s.NewLayerSurface != 0) {
    if (s.LinkNewSurface == 0) {
      plan.passThrough = true;
      return plan;
    }
    g.render.layerOutputMode = static_cast<LayerOutputMode>(s.LinkNewSurface);
  }
  if (g.render.layerOutputMode == LayerOutputMode::kSurfaceAlone) return plan;
  const bool marksEffect = s.LinkNewLayer == 0 && s.NewLayerEffect != 0 && s.LinkNewWash == 0;
  const bool marksBackground = s.NewLayerEffect == 0 && s.LinkNewBackground == 0 &&
                               s.NewLayerBackground != 0 && s.BackgroundUse != 0 &&
                               s.LinkNewLayer == 0 && s.LinkNewWash == 0;
  if (marksEffect || marksBackground) {
    s.LinkNewLayer = 1;
    plan.passThrough = true;
  }
  return plan;
}

void DecideBackground(FilterGlobals& g, PassPlan& plan) {
  EffectSettings& s = *g.gParams;
  if (s.BackgroundUse == 0 || !g.HostHasActions || s.NewLayerBackground == 0) return;
  if (s.LinkNewBackground == 0) {
    plan.backgroundHeld = true;
    s.BackgroundUse = 0;
  } else {
    plan.view = ViewMode::kBackground;
  }
}

void DecideMask(FilterGlobals& g, PassPlan& plan) {
  EffectSettings& s = *g.gParams;
  RenderState& state = g.render;
  if (s.WashUse == 0 || !g.HostHasActions || s.MaskLayerEffect == 0) return;
  if (s.LinkNewWash == 0 && state.layerOutputMode != LayerOutputMode::kSurfaceAlone &&
      state.HasTransparency()) {
    state.deferWash = true;
    s.WashUse = 0;
  }
  plan.writesMask = s.LinkNewWash != 0 && HasMaskPlane(state);
}

void WriteMask(FilterGlobals& g, const PictureJob& job) {
  EffectSettings& s = *g.gParams;
  RenderState& state = g.render;
  CopyInputToOutput(job);
  state.surfaceSave.Free();
  const bool wantsSave =
      s.WashUse != 0 && s.SurfaceUse != 0 && s.SurfaceEntire != 0 && s.SurfaceIncludeWashArea != 0;
  // What is not wanted now stays for a later pass.
  state.keepSurfaceSave =
      wantsSave && TakeKept(s.SavedSurfaceMask, state.PixelCount() * 4, state.surfaceSave);
  const MaskTarget target{job.out, job.outRowBytes, job.width, job.height, job.planes};
  std::uintptr_t* const fields[2] = {&s.SavedWashMask1, &s.SavedWashMask2};
  const std::size_t washes = s.SecondWashExists != 0 ? 2 : 1;
  for (std::size_t i = 0; i < washes; ++i) {
    EffectLayer& wash = g.layers.washes[i];
    if (TakeKept(*fields[i], state.PixelCount(), wash.edgeSamples)) wash.samplesWhole = false;
    RenderWashToMask(wash, state, target);
  }
  state.surfaceSave.Free();
  state.keepSurfaceSave = false;
  s.LinkNewWash = 0;
}

void KeepForLaterPass(FilterGlobals& g) {
  EffectSettings& s = *g.gParams;
  RenderState& state = g.render;
  if (state.keepSurfaceSave || state.deferWash) {
    // A host that lost the settings has lost what they named.
    DropBlocksExcept({s.SavedWashMask1, s.SavedWashMask2, s.SavedSurfaceMask});
  }
  if (state.keepSurfaceSave) {
    if (s.LinkNewWash == 0 && s.MaskLayerEffect != 0) {
      Keep(state.surfaceSave, s.SavedSurfaceMask);
    } else {
      state.surfaceSave.Free();
    }
  }
  if (state.deferWash) {
    Keep(g.layers.washes[0].edgeSamples, s.SavedWashMask1);
    if (s.SecondWashExists != 0) Keep(g.layers.washes[1].edgeSamples, s.SavedWashMask2);
  }
}

}  // namespace tarnwick
