#pragma once
#include "dialog/models/effect_views.h"
#include "dialog/models/kept_layers.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// What the strip's buttons do to views and settings. The layers follow: each says
// what is due to them.

enum class LayerWork {
  kNone,
  kMakeSecondWash,
  kDropSecondWash,
  kRemakeWashes,  // both, from the settings
  kMakeSecondSurface,
  kDropSecondSurface,
  kRemakeSurfaces,
};

// A view or a cross (kViewComposite..kDeleteWashOne): a second effect comes or goes.
// Where the first of two goes, the second takes its place, but for the angle, the
// offset and, of a wash, the distance from the edge and the seed, which stay with the
// place. The view stays until the layers have followed: what is linked takes the values
// of the effect that was in view, not those of a new one.
LayerWork ChangeEffects(EffectViews& views, EffectSettings& settings, int command);

// The current page gets the view that the button leads to.
void ChooseView(EffectViews& views, int command);

// All the page shows is the chosen effect; otherwise only what can be used changes.
[[nodiscard]] bool ShowsOneEffect(const EffectViews& views);

// The settings of a page back to their defaults, without textures. All of them on
// Basic. Holds the next snapshot back.
KeptLayers ResetPage(EffectSettings& settings, SettingsSession& session, int tab);

// What SyncViews has found.
struct StripSync {
  bool isChanged = false;  // the strip has to be laid out anew
  LayerWork wash = LayerWork::kNone;
  LayerWork surface = LayerWork::kNone;
};

// Follows settings that something else has written. A second effect that comes or
// goes takes its page back to Composite.
StripSync SyncViews(EffectViews& views, const EffectSettings& settings);

}  // namespace tarnwick
