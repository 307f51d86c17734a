#pragma once
#include <cstdint>
#include <string_view>

#include "settings/settings_table.h"

namespace tarnwick {

// Reads and writes a field through its row. Numbers of every size go through
// 64-bit integers; a stored number keeps the low bits that its type holds.
// Each routine is for the types it names: others read as 0 or empty, and are
// not written.

// True for kText and kCategory.
[[nodiscard]] bool IsText(SettingType type);

// kFlag, kByte, kInteger, kColor, kShort, kWord, kAddress.
[[nodiscard]] std::int64_t SettingNumber(const SettingField& field, const EffectSettings& settings,
                                         const SettingsSession& session);
void StoreSettingNumber(const SettingField& field, std::int64_t value, EffectSettings& settings,
                        SettingsSession& session);

// kFloat.
[[nodiscard]] float SettingFloat(const SettingField& field, const EffectSettings& settings);
void StoreSettingFloat(const SettingField& field, float value, EffectSettings& settings);

// kText and kCategory; valid until the field changes. A stored text is cut at
// MaxSettingText and its rest of the array cleared.
[[nodiscard]] std::string_view SettingText(const SettingField& field,
                                           const EffectSettings& settings,
                                           const SettingsSession& session);
void StoreSettingText(const SettingField& field, std::string_view text, EffectSettings& settings,
                      SettingsSession& session);

// Bytes without the terminator: 127 for a texture, 63 for a category.
[[nodiscard]] std::size_t MaxSettingText(const SettingField& field);

// A texture's name into its array, cut at 127 bytes, the rest cleared.
void StoreTextureName(char (&name)[kTextureNameSize], std::string_view text);

// The default of the table.
void StoreSettingDefault(const SettingField& field, EffectSettings& settings,
                         SettingsSession& session);

}  // namespace tarnwick
