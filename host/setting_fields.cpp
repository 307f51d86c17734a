#include <string>

#include "host/scenario_run.h"
#include "settings/settings_access.h"
#include "settings/settings_text.h"

namespace tarnwick::testhost {
namespace {

const SettingField& FieldOf(const std::string& name) {
  const SettingField* const field = FindSetting(name);
  if (field == nullptr) throw ScenarioError("there is no setting " + name);
  if (field->inSession) {
    throw ScenarioError(name + " is the module's own: only a step carries it");
  }
  return *field;
}

}  // namespace

void StoreField(void* block, const std::string& name, const std::string& value) {
  const SettingField& field = FieldOf(name);
  auto& settings = *static_cast<EffectSettings*>(block);
  SettingsSession session;
  if (IsText(field.type)) {
    StoreSettingText(field, value, settings, session);
  } else if (UserMaySet(field)) {
    if (SetSettingFromText(field, value, settings, session) != SettingError::kNone) {
      throw ScenarioError(name + " cannot be " + value);
    }
  } else {
    StoreSettingNumber(field, std::stoll(value), settings, session);
  }
}

std::string FieldText(const void* block, const std::string& name) {
  const SettingField& field = FieldOf(name);
  const auto& settings = *static_cast<const EffectSettings*>(block);
  const SettingsSession session;
  if (IsText(field.type)) return std::string(SettingText(field, settings, session));
  if (field.type == SettingType::kFloat) return SettingAsText(field, settings, session);
  return std::to_string(SettingNumber(field, settings, session));
}

}  // namespace tarnwick::testhost
