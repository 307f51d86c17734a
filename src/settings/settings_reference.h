#pragma once
#include <string>

#include "settings/settings_table.h"

namespace tarnwick {

// The table of settings in words. Fields that only the program sets are left
// out.

// What a field takes: "0 to 200", "#rrggbb", "0 Erosion, 1 Stain, ...".
[[nodiscard]] std::string DescribeSettingValues(const SettingField& field);

// The field's default as SetSettingFromText takes it.
[[nodiscard]] std::string SettingDefaultAsText(const SettingField& field);

// For a terminal: name, values and default of each field, its help below.
[[nodiscard]] std::string SettingsHelp();

// The same as a Markdown table, with the key of scripting.
[[nodiscard]] std::string SettingsReference();

}  // namespace tarnwick
