#pragma once
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "age_options.h"
#include "data_folders.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// The settings that the command line adds up to, and what is odd about them.
struct ComposedSettings {
  EffectSettings settings;
  SettingsSession session;
  std::vector<std::string> warnings;
};

// The defaults, then each step in turn.
//
// A preset is an assignment of the fields that it names. A --set of a field that
// has a side effect in presets has the same one here: with WashUse, SurfaceUse
// or BackgroundUse at 0 the textures of the group go. A seed is set again after
// each later preset.
//
// Errors  CliError: wrong use for unknown fields, presets and values that do not
//         parse; input failed for a preset file that is none.
[[nodiscard]] ComposedSettings ComposeSettings(std::span<const AgeStep> steps,
                                               const DataFolders& folders);

// The names of the textures that take part in a render.
[[nodiscard]] std::vector<std::string> TexturesInUse(const EffectSettings& settings);

// Gives every texture name the spelling that its file has in `folder`, where
// only the case of letters differs: presets come from systems that ignore it.
void SpellTexturesAsIn(const std::filesystem::path& folder, EffectSettings& settings);

// Wrong use for a field that does not exist, with the near ones.
[[noreturn]] void FailUnknownField(const std::string& what, const std::string& name);

}  // namespace tarnwick
