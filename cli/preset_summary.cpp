#include "preset_summary.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "json_writer.h"
#include "presets/color_preset.h"
#include "presets/preset_reader.h"
#include "settings/settings_text.h"
#include "text_table.h"

namespace tarnwick {
namespace {

// A colour word as it is written for people, red first.
std::string ColorText(std::uint32_t word) {
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "#%02x%02x%02x", word & 0xFFu, word >> 8 & 0xFFu,
                word >> 16 & 0xFFu);
  return text.data();
}

}  // namespace

PresetLoad SummarizePreset(std::string_view bytes, PresetSummary& summary) {
  PresetSource source{bytes};
  PresetLine line;
  if (!ReadPresetLine(source, line) || !IsPresetHeader(line)) return PresetLoad::kNotAPreset;
  EffectSettings settings;
  SettingsSession links;
  InitSettingsToDefaults(settings, links);
  PresetSession session(links);
  std::vector<const SettingField*> fields;
  std::vector<std::uint32_t> keys;
  while (ReadPresetLine(source, line)) {
    const PresetLineTarget target = ApplyPresetLine(line, settings, session);
    keys.push_back(target.key);
    if (target.field != nullptr && std::ranges::find(fields, target.field) == fields.end()) {
      fields.push_back(target.field);
    }
  }
  summary.version = session.PresetVersion;
  // By value at the end: later lines and conversions may have changed it.
  for (const SettingField* field : fields) {
    summary.fields.emplace_back(field->name, SettingAsText(*field, settings, links));
  }
  if (!ReadColorCategory(bytes, summary.category)) summary.category.clear();
  const auto addColor = [&](std::uint32_t key, const char* name, std::uint32_t color) {
    if (std::ranges::find(keys, key) != keys.end()) {
      summary.colors.emplace_back(name, ColorText(color));
    }
  };
  addColor(kHighlightColorKey, "highlight", session.PresetHighlightColor);
  addColor(kMidtoneColorKey, "midtone", session.PresetMidtoneColor);
  addColor(kShadowColorKey, "shadow", session.PresetShadowColor);
  return PresetLoad::kLoaded;
}

std::string SummaryAsText(const std::string& path, const PresetSummary& summary) {
  std::string text = path + ", version " + std::to_string(summary.version) + "\n";
  if (!summary.category.empty()) text += "  category  " + summary.category + "\n";
  std::vector<std::vector<std::string>> rows;
  for (const auto& [name, value] : summary.colors) rows.push_back({"  " + name, value});
  for (const auto& [name, value] : summary.fields) rows.push_back({"  " + name, value});
  return text + AlignColumns(rows);
}

std::string SummaryAsJson(const std::string& path, const PresetSummary& summary) {
  JsonWriter json;
  json.BeginObject();
  json.Key("path").String(path);
  json.Key("version").Number(std::int64_t{summary.version});
  if (!summary.category.empty()) json.Key("category").String(summary.category);
  for (const auto& [key, pairs] :
       {std::pair("colors", &summary.colors), std::pair("fields", &summary.fields)}) {
    json.Key(key).BeginObject();
    for (const auto& [name, value] : *pairs) json.Key(name).String(value);
    json.EndObject();
  }
  json.EndObject();
  return json.Text();
}

}  // namespace tarnwick
