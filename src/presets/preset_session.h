#pragma once
#include <cstdint>

#include "settings/effect_settings.h"

namespace tarnwick {

// What presets change besides the record. One lives as long as the module and
// is handed to every read.
struct PresetSession {
  explicit PresetSession(SettingsSession& session) : settingsSession(session) {}

  // For the link flags; not owned.
  SettingsSession& settingsSession;

  // The form of the lines being read, 1 or 2. A file's version line sets it and
  // nothing sets it back: a file without one is read as the file before it.
  std::int32_t PresetVersion = 2;

  // The tones of the last colour preset, as colour words. They never go into
  // the record by themselves.
  std::uint32_t PresetHighlightColor = 0;
  std::uint32_t PresetMidtoneColor = 0;
  std::uint32_t PresetShadowColor = 0;
};

}  // namespace tarnwick
