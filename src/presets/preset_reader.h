#pragma once
#include <cstdint>
#include <string_view>

#include "presets/preset_lines.h"
#include "presets/preset_session.h"
#include "settings/settings_table.h"

namespace tarnwick {

// Reads presets into the live record: each line is an assignment, in the order
// of the file, so what a file does not mention stays as it was.
//
// Unknown keys and broken lines do nothing, a value that does not parse is 0,
// and nothing is checked against a range. Names are cut at 127 bytes.

// A line read, for those who want to know what it was.
struct PresetLineTarget {
  std::uint32_t key = 0;                // 0: no key, as in comments
  const SettingField* field = nullptr;  // null: unknown, a colour or no key
};

// One line of the body: assignment, side effects and, when the version is 1,
// conversions.
PresetLineTarget ApplyPresetLine(const PresetLine& line, EffectSettings& settings,
                                 PresetSession& session);

// All lines from `source.at` on.
void ReadPresetBody(PresetSource& source, EffectSettings& settings, PresetSession& session);

// Header and body of a whole file. False, and nothing changed, without the
// header.
[[nodiscard]] bool ReadPreset(std::string_view bytes, EffectSettings& settings,
                              PresetSession& session);

// The field that a key of a preset assigns to, or null.
[[nodiscard]] const SettingField* FindPresetField(std::uint32_t key);

// Keys outside the settings table.
inline constexpr std::uint32_t kCategoryKey = PresetKey("rgtC");
inline constexpr std::uint32_t kHighlightColorKey = PresetKey("lCiH");
inline constexpr std::uint32_t kMidtoneColorKey = PresetKey("lCdM");
inline constexpr std::uint32_t kShadowColorKey = PresetKey("lCdS");

}  // namespace tarnwick
