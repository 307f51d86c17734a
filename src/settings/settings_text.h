#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "settings/settings_table.h"

namespace tarnwick {

// Settings as people write them, on a command line or in a table of values.
//
//   flags       0 1, off on, false true, no yes
//   choices     the number or the name of the value: 1 or Stain
//   numbers     decimal; a point in floats, whatever the locale
//   colours     #rrggbb, or the decimal colour word (red + 256 green + 65536 blue)
//   textures    the file name, with or without ".twk"; in double quotes the
//               very bytes, without ".twk" added
//   categories  any text
//
// Names and words go without regard to case. The whole text has to be used up.

enum class SettingError {
  kNone,
  kNotSettable,  // the program's own: see UserMaySet
  kNotANumber,
  kDoesNotFit,  // a number beyond the field's type
  kNotAColor,
  kTooLong,  // more bytes than MaxSettingText
};

// Stores `text` in the field. A value outside the stated range is stored, too:
// ask SettingIsInRange. On an error nothing is changed.
[[nodiscard]] SettingError SetSettingFromText(const SettingField& field, std::string_view text,
                                              EffectSettings& settings, SettingsSession& session);

// The value as text that SetSettingFromText reads back to the same value.
[[nodiscard]] std::string SettingAsText(const SettingField& field, const EffectSettings& settings,
                                        const SettingsSession& session);

// False when the field holds a value that the dialog's controls cannot set.
[[nodiscard]] bool SettingIsInRange(const SettingField& field, const EffectSettings& settings,
                                    const SettingsSession& session);

// The same for a number that is yet to be stored.
[[nodiscard]] bool NumberIsInRange(const SettingRange& range, double number);

// Why a text was not taken: "is not a number", to follow the text itself.
[[nodiscard]] const char* DescribeSettingError(SettingError error);

// The settable fields whose names resemble `name`, best first, at most five.
[[nodiscard]] std::vector<std::string> NearSettingNames(std::string_view name);

}  // namespace tarnwick
