#pragma once
#include <string>
#include <vector>

#include "settings/settings_access.h"
#include "settings/settings_text.h"

namespace tarnwick {

// A record with its session, for tests that look at both.
struct SettingsPair {
  EffectSettings settings;
  SettingsSession session;
};

inline SettingsPair DefaultSettings() {
  SettingsPair pair;
  InitSettingsToDefaults(pair.settings, pair.session);
  return pair;
}

// A value that is no field's default, in every field.
inline SettingsPair MarkedSettings() {
  SettingsPair pair;
  for (const SettingField& field : SettingsTable()) {
    StoreSettingNumber(field, 77, pair.settings, pair.session);
    StoreSettingFloat(field, 77.5f, pair.settings);
    StoreSettingText(field, "Marked.twk", pair.settings, pair.session);
  }
  return pair;
}

// "WashScale1 50", a line for each field in which `after` differs, in the order
// of the table; colours as #rrggbb.
inline std::vector<std::string> Changes(const SettingsPair& before, const SettingsPair& after) {
  std::vector<std::string> changes;
  for (const SettingField& field : SettingsTable()) {
    const std::string now = SettingAsText(field, after.settings, after.session);
    if (SettingAsText(field, before.settings, before.session) == now) continue;
    changes.push_back(std::string(field.name) + ' ' + now);
  }
  return changes;
}

}  // namespace tarnwick
