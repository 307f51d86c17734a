#pragma once
#include "dialog/models/effect_views.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// Which effects share a texture, and so may be linked.
struct TextureMatches {
  // Both layers of the kind have the same texture.
  bool sameWashes = false;
  bool sameSurfaces = false;
  // The two kinds have the same texture throughout.
  bool washSurface = false;
  bool washBackground = false;
  bool surfaceBackground = false;

  bool operator==(const TextureMatches&) const = default;

  [[nodiscard]] bool Wash() const { return washSurface || washBackground; }
  [[nodiscard]] bool Surface() const { return washSurface || surfaceBackground; }
  [[nodiscard]] bool Background() const { return washBackground || surfaceBackground; }
};

// WashUse, SurfaceUse and BackgroundUse out of the names of the textures. No control
// sets them. On the page of a kind with two layers, the one in view decides.
void UpdateUseFlags(const EffectViews& views, EffectSettings& settings);

// Updates the use flags first. A link whose effect matches no other any more goes off;
// none goes on.
TextureMatches UpdateTextureMatches(const EffectViews& views, EffectSettings& settings,
                                    SettingsSession& session);

}  // namespace tarnwick
