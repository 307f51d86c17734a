#include "presets/preset_reader.h"

#include "presets/preset_effects.h"
#include "settings/settings_access.h"

namespace tarnwick {
namespace {

void StoreValue(const SettingField& field, PresetCursor& cursor, EffectSettings& settings,
                SettingsSession& session) {
  if (IsText(field.type)) {
    StoreSettingText(field, cursor.TakeText(), settings, session);
  } else if (field.type == SettingType::kFloat) {
    StoreSettingFloat(field, static_cast<float>(cursor.TakeDouble()), settings);
  } else {
    StoreSettingNumber(field, cursor.TakeInteger(), settings, session);
  }
}

void StoreColor(std::uint32_t key, PresetCursor& cursor, PresetSession& session) {
  std::uint32_t* color = key == kHighlightColorKey ? &session.PresetHighlightColor
                         : key == kMidtoneColorKey ? &session.PresetMidtoneColor
                         : key == kShadowColorKey  ? &session.PresetShadowColor
                                                   : nullptr;
  if (color != nullptr) *color = static_cast<std::uint32_t>(cursor.TakeInteger());
}

}  // namespace

const SettingField* FindPresetField(std::uint32_t key) {
  const SettingField* field = FindSettingByKey(key);
  const bool isLine = field != nullptr && field->section != PresetSection::kNone;
  return isLine ? field : nullptr;
}

PresetLineTarget ApplyPresetLine(const PresetLine& line, EffectSettings& settings,
                                 PresetSession& session) {
  // A version line goes on to be looked up as a key, which it is not.
  const std::int32_t version = PresetVersionOf(line);
  if (version == 1 || version == 2) session.PresetVersion = version;

  PresetCursor cursor(line);
  cursor.SkipBlanks();
  const std::uint32_t key = cursor.TakeKey();
  if (key == 0) return {};
  cursor.SkipBlanks();
  const SettingField* field = FindPresetField(key);
  if (field == nullptr) {
    StoreColor(key, cursor, session);
    return {key, nullptr};
  }
  StoreValue(*field, cursor, settings, session.settingsSession);
  ApplyPresetSideEffects(key, settings, session.PresetVersion);
  if (session.PresetVersion == 1) ConvertFromVersion1(key, settings);
  return {key, field};
}

void ReadPresetBody(PresetSource& source, EffectSettings& settings, PresetSession& session) {
  PresetLine line;
  while (ReadPresetLine(source, line)) ApplyPresetLine(line, settings, session);
}

bool ReadPreset(std::string_view bytes, EffectSettings& settings, PresetSession& session) {
  PresetSource source{bytes};
  PresetLine header;
  if (!ReadPresetLine(source, header) || !IsPresetHeader(header)) return false;
  ReadPresetBody(source, settings, session);
  return true;
}

}  // namespace tarnwick
