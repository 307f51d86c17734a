#include "settings/settings_reference.h"

#include "settings/settings_access.h"
#include "settings/settings_text.h"

namespace tarnwick {
namespace {

std::string WholeAsText(double number) {
  return std::to_string(static_cast<std::int64_t>(number));
}

std::string KeyAsText(std::uint32_t key) {
  std::string text;
  for (const int shift : {24, 16, 8, 0}) text += static_cast<char>(key >> shift & 0xFF);
  return text;
}

}  // namespace

std::string DescribeSettingValues(const SettingField& field) {
  const SettingRange& range = field.range;
  if (field.type == SettingType::kText) return "a texture";
  if (field.type == SettingType::kCategory) return "a name";
  if (field.type == SettingType::kColor) return "#rrggbb";
  if (!range.labels.empty()) {
    std::string list;
    for (std::size_t i = 0; i < range.labels.size(); ++i) {
      list += (i == 0 ? "" : ", ") + std::to_string(i) + ' ' + range.labels[i];
    }
    return list;
  }
  if (!range.IsStated()) {
    return field.type == SettingType::kFloat ? "any number" : "any whole number";
  }
  if (range.minimum == 0 && range.maximum == 1) return "0 or 1";
  if (range.step != 1) {
    std::string list;
    for (double value = range.minimum; value <= range.maximum; value += range.step) {
      list += (list.empty() ? "" : ", ") + WholeAsText(value);
    }
    return list;
  }
  return WholeAsText(range.minimum) + " to " + WholeAsText(range.maximum);
}

std::string SettingDefaultAsText(const SettingField& field) {
  EffectSettings settings;
  SettingsSession session;
  StoreSettingDefault(field, settings, session);
  return SettingAsText(field, settings, session);
}

std::string SettingsHelp() {
  std::string text;
  for (const SettingField& field : SettingsTable()) {
    if (!UserMaySet(field)) continue;
    text += std::string("  ") + field.name + " = " + SettingDefaultAsText(field) + " (" +
            DescribeSettingValues(field) + ")\n      " + field.help + '\n';
  }
  return text;
}

std::string SettingsReference() {
  std::string text =
      "| Setting | Values | Default | Key | Meaning |\n"
      "|---|---|---|---|---|\n";
  for (const SettingField& field : SettingsTable()) {
    if (!UserMaySet(field)) continue;
    const std::string key = field.key == 0 ? "" : '`' + KeyAsText(field.key) + '`';
    text += std::string("| `") + field.name + "` | " + DescribeSettingValues(field) + " | " +
            SettingDefaultAsText(field) + " | " + key + " | " + field.help + " |\n";
  }
  return text;
}

}  // namespace tarnwick
