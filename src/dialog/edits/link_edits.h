#pragma once
#include "dialog/edits/active_effect.h"
#include "dialog/models/effect_views.h"
#include "dialog/models/texture_matches.h"
#include "engine/effect_layer.h"
#include "engine/render_state.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// Effects with the same texture that move together.

// What a link works on; nothing is owned.
struct LinkScope {
  EffectLayers& layers;
  RenderState& state;
  EffectSettings& settings;
  SettingsSession& session;
  const EffectViews& views;
};

[[nodiscard]] std::uint8_t& LinkFlagOf(LayerKind kind, SettingsSession& session);
[[nodiscard]] bool HasMatch(LayerKind kind, const TextureMatches& matches);
// Two kinds have the same texture.
[[nodiscard]] bool AreMatched(LayerKind one, LayerKind other, const TextureMatches& matches);

// If the kind is linked: scale, flips, offset and angle of the layer that its page
// edits go to its other layer, and to the kinds that are in use and linked too. Texts
// of the settings and layers both change; textures are turned and loaded anew.
void PropagateLinks(const LinkScope& scope, LayerKind source);

// The radio button that the offer to link `own` starts with: the first match in the
// order wash, surface, background. `own` where there is none.
[[nodiscard]] LayerKind PreselectedSource(LayerKind own, const TextureMatches& matches);

// The user has said yes: `own` and all that match it are linked, and take what
// `source` has.
void AcceptLink(const LinkScope& scope, LayerKind own, LayerKind source,
                const TextureMatches& matches);

}  // namespace tarnwick
