#pragma once
#include <filesystem>

#include "presets/preset_kind.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// Writes settings as a preset, whole or not at all.
//
// Errors  wrong use, when `target` has not the extension of a preset or cannot
//         be a file; input failed, when it is there and `force` is off, or when
//         it cannot be written.
void SavePreset(const std::filesystem::path& target, PresetKind kind, bool force,
                const EffectSettings& settings, const SettingsSession& session);

}  // namespace tarnwick
