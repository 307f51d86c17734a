#pragma once
#include "engine/effect_layer.h"
#include "engine/render_state.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// Configures the layers that take part, allocates the surface's
// buffer, and derives the switches of the groups.
void CreateLayers(EffectLayers& layers, RenderState& state, EffectSettings& settings,
                  const SettingsSession& session);

// WashUse, SurfaceUse and BackgroundUse from the texture names: a group is on if one
// of its textures is not "No_Texture.twk".
void DeriveSwitches(EffectSettings& settings);

// Gives back the layers' images and all buffers of the render. The washes'
// edgeSamples stay while state.deferWash is set: a later pass needs them.
void DestroyLayers(EffectLayers& layers, RenderState& state);

}  // namespace tarnwick
