#include "engine/render_layers.h"

#include <cstring>
#include <utility>

#include "engine/layer_setup.h"
#include "engine/render_buffers.h"

namespace tarnwick {
namespace {

bool Names(const char (&name)[kTextureNameSize]) {
  return std::strncmp(name, kNoTextureName, kTextureNameSize) != 0;
}

}  // namespace

void DeriveSwitches(EffectSettings& s) {
  s.WashUse = Names(s.WashFileName1) || (s.SecondWashExists != 0 && Names(s.WashFileName2)) ? 1 : 0;
  s.SurfaceUse =
      Names(s.SurfaceFileName1) || (s.SecondSurfaceExists != 0 && Names(s.SurfaceFileName2)) ? 1
                                                                                             : 0;
  s.BackgroundUse = Names(s.BackgroundFileName) ? 1 : 0;
}

void CreateLayers(EffectLayers& layers, RenderState& state, EffectSettings& settings,
                  const SettingsSession& session) {
  // A layer that cannot be set up has no texture, and its stage is left out.
  (void)ConfigureWash(layers.washes[0], state, settings, session, false);
  if (settings.SecondWashExists != 0) {
    (void)ConfigureWash(layers.washes[1], state, settings, session, true);
  }
  (void)ConfigureBackground(layers.background, state, settings);
  (void)ConfigureSurface(layers.surfaces[0], state, settings, session, false);
  if (settings.SecondSurfaceExists != 0) {
    (void)ConfigureSurface(layers.surfaces[1], state, settings, session, true);
  }
  AllocateSurfaceBuffers(state);
  DeriveSwitches(settings);
}

void DestroyLayers(EffectLayers& layers, RenderState& state) {
  for (EffectLayer& wash : layers.washes) {
    PageBuffer<std::uint8_t> kept = std::move(wash.edgeSamples);
    wash = EffectLayer{};
    if (state.deferWash) wash.edgeSamples = std::move(kept);
  }
  for (EffectLayer& surface : layers.surfaces) surface = EffectLayer{};
  layers.background = EffectLayer{};
  state.outputPixels.Free();
  state.sourcePixels.Free();
  state.surfaceResult.Free();
}

}  // namespace tarnwick
