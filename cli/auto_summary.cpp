#include "auto_summary.h"

#include "json_writer.h"
#include "settings/settings_text.h"
#include "settings_recipe.h"
#include "text_table.h"

namespace tarnwick {
namespace {

void PutNames(JsonWriter& json, const char* key, const std::vector<std::string>& names) {
  json.Key(key).BeginArray();
  for (const std::string& name : names) json.String(name);
  json.EndArray();
}

void PutName(JsonWriter& json, const char* key, const std::string& name) {
  json.Key(key);
  if (name.empty()) {
    json.Null();
  } else {
    json.String(name);
  }
}

}  // namespace

AutoSummary SummarizeThrow(std::uint32_t seed, const AutoThrow& thrown,
                           const std::filesystem::path& presetRoot, const EffectSettings& settings,
                           const SettingsSession& session) {
  AutoSummary summary;
  summary.seed = seed;
  for (const std::filesystem::path& path : thrown.presets) {
    std::filesystem::path name = path.lexically_relative(presetRoot);
    summary.presets.push_back(name.replace_extension().generic_string());
  }
  summary.surfaceColors = thrown.surfaceColors;
  summary.backgroundColors = thrown.backgroundColors;
  summary.textures = TexturesInUse(settings);
  EffectSettings defaults;
  SettingsSession defaultSession;
  InitSettingsToDefaults(defaults, defaultSession);
  for (const SettingField& field : SettingsTable()) {
    if (!UserMaySet(field)) continue;
    const std::string value = SettingAsText(field, settings, session);
    if (value == SettingAsText(field, defaults, defaultSession)) continue;
    summary.settings.emplace_back(field.name, value);
  }
  return summary;
}

std::string SummaryAsText(const AutoSummary& summary) {
  const auto orNone = [](const std::string& text) { return text.empty() ? "none" : text; };
  std::vector<std::vector<std::string>> rows = {
      {"seed", std::to_string(summary.seed)},
      {"presets", orNone(JoinNames(summary.presets))},
      {"textures", orNone(JoinNames(summary.textures))},
  };
  if (!summary.surfaceColors.empty()) rows.push_back({"surface colours", summary.surfaceColors});
  if (!summary.backgroundColors.empty()) {
    rows.push_back({"background colours", summary.backgroundColors});
  }
  const std::string head = AlignColumns(rows);
  rows.clear();
  for (const auto& [name, value] : summary.settings) rows.push_back({"  " + name, value});
  return head + "settings\n" + AlignColumns(rows);
}

std::string SummaryAsJson(const AutoSummary& summary) {
  JsonWriter json;
  json.BeginObject();
  json.Key("seed").Number(std::int64_t{summary.seed});
  PutNames(json, "presets", summary.presets);
  PutNames(json, "textures", summary.textures);
  PutName(json, "surfaceColors", summary.surfaceColors);
  PutName(json, "backgroundColors", summary.backgroundColors);
  json.Key("settings").BeginObject();
  for (const auto& [name, value] : summary.settings) json.Key(name).String(value);
  json.EndObject();
  json.EndObject();
  return json.Text();
}

}  // namespace tarnwick
