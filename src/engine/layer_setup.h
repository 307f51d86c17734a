#pragma once
#include "engine/effect_layer.h"
#include "engine/render_state.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// Fills a layer from the settings and loads its texture; for a wash also builds
// coverage and selection. `second` takes the fields that end in 2. A second wash
// or surface that is linked first takes over the first one's texture name, in
// the settings themselves.
// False when the texture could not be set up in any form.
bool ConfigureWash(EffectLayer& layer, RenderState& state, EffectSettings& settings,
                   const SettingsSession& session, bool second);
bool ConfigureBackground(EffectLayer& layer, RenderState& state, const EffectSettings& settings);
bool ConfigureSurface(EffectLayer& layer, RenderState& state, EffectSettings& settings,
                      const SettingsSession& session, bool second);

}  // namespace tarnwick
