#pragma once
#include "dialog/models/kept_layers.h"
#include "presets/preset_kind.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// What the choice of a preset does to the dialog beside the settings it reads.

// The colours that a preset of this kind may bring have no name of their own: their
// categories become "Custom". Before the file is read, and whether or not it can be.
void ForgetColorNames(PresetKind kind, SettingsSession& session);

// The layers that a choice in the list of `kind` cannot have changed, by settings that
// have been read and whose use flags are up to date. A group that is off is not made
// anew whatever the list.
[[nodiscard]] KeptLayers LayersThatStay(PresetKind kind, const EffectSettings& settings);

}  // namespace tarnwick
