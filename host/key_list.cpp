#include "host/key_list.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

#include "host/scenario_run.h"
#include "settings/effect_settings.h"

namespace tarnwick::testhost {

std::vector<std::string> ReadLines(const std::string& path) {
  std::ifstream in(path);
  if (!in) throw std::runtime_error(path + " cannot be read");
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!line.empty()) lines.push_back(line);
  }
  return lines;
}

std::vector<ListedKey> ReadKeyList(const std::string& path) {
  std::vector<ListedKey> keys;
  for (const std::string& line : ReadLines(path)) {
    std::istringstream words(line);
    ListedKey key;
    key.line = static_cast<int>(keys.size());
    std::string ways;
    words >> key.key >> key.type >> key.field >> ways;
    if (ways.size() != 4) throw std::runtime_error(path + ": " + line);
    key.scriptWrite = ways[0] == 'W';
    key.scriptRead = ways[1] == 'R';
    key.registryWrite = ways[2] == 'w';
    key.registryRead = ways[3] == 'r';
    keys.push_back(key);
  }
  return keys;
}

bool IsInBlock(const ListedKey& key) {
  const bool isLink = key.field.ends_with("Linked");
  const bool isAddress = key.field.starts_with("Saved");
  return !isLink && !isAddress;
}

std::string DefaultText(const ListedKey& key) {
  EffectSettings settings;
  SettingsSession session;
  InitSettingsToDefaults(settings, session);
  return FieldText(&settings, key.field);
}

std::string DistinctText(const ListedKey& key) {
  if (key.type == "boolean") return DefaultText(key) == "0" ? "1" : "0";
  if (key.type == "string") return "Name" + std::to_string(key.line) + ".twk";
  if (key.type == "float") return std::to_string(key.line) + ".5";
  if (key.type == "enumerated") return "3";
  // Fits a byte, and no default is as odd.
  return std::to_string(131 + key.line % 120);
}

std::string DistinctDescriptorText(const ListedKey& key) {
  if (key.type == "boolean") return DistinctText(key) == "1" ? "true" : "false";
  if (key.type == "enumerated") return "mooD moD3";
  return DistinctText(key) + (key.type == "percent" ? "%" : "");
}

}  // namespace tarnwick::testhost
