#pragma once
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "presets/preset_file.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// Three tones, as a file in the folder "Colors" holds them. The same files
// colour surfaces and backgrounds.
struct ColorPreset {
  std::uint32_t highlight = 0;  // colour words
  std::uint32_t midtone = 0;
  std::uint32_t shadow = 0;
  std::string category;  // several are joined by "|"; empty without one
};

// The category, which stands in the fourth line of a file. False, and
// `category` untouched, when that line is missing or holds another key. The
// header is not looked at.
[[nodiscard]] bool ReadColorCategory(std::string_view bytes, std::string& category);

// All of a file. A tone that it lacks is black. `colors` is set when kLoaded.
[[nodiscard]] PresetLoad ReadColorPreset(std::string_view bytes, ColorPreset& colors);
[[nodiscard]] PresetLoad LoadColorPreset(const std::filesystem::path& path, ColorPreset& colors);

// Puts the tones into the record and `name`, that of the preset, into the
// category shown (cut at 63 bytes).
void UseAsSurfaceColors(const ColorPreset& colors, std::string_view name, EffectSettings& settings,
                        SettingsSession& session);
void UseAsBackgroundColors(const ColorPreset& colors, std::string_view name,
                           EffectSettings& settings, SettingsSession& session);

}  // namespace tarnwick
