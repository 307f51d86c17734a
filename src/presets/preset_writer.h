#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "presets/preset_kind.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// The text of a preset: header, version, then the sections of the kind, one LF
// after each line. A group that is off writes its switch alone.
//
//   kBasic, and any other number   the link flags
//   kWash, kSurface, kBackground   the share and the link flags
//   kUser                          everything
//   the colour kinds               category "Empty" and three colours
[[nodiscard]] std::string PresetText(PresetKind kind, const EffectSettings& settings,
                                     const SettingsSession& session);

// Single lines, appended to `out`: key, blank, value, blank, comment, and a
// blank before the LF in all forms but the integer's. The key goes low byte
// first. The ini file is written with them, too.

void WritePresetFlag(std::string& out, std::uint32_t key, std::uint8_t value,
                     std::string_view comment);
void WritePresetInteger(std::string& out, std::uint32_t key, std::int32_t value,
                        std::string_view comment);

// Two decimals, rounded from the exact value, with a point in every locale.
void WritePresetFloat(std::string& out, std::uint32_t key, float value, std::string_view comment);

// Nothing for a null text.
void WritePresetText(std::string& out, std::uint32_t key, const char* text,
                     std::string_view comment);

// A section line; gets the ";" that it lacks. Nothing for a null text.
void WritePresetComment(std::string& out, const char* text);

}  // namespace tarnwick
