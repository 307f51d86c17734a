#pragma once
#include <cstdint>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "presets/auto_randomize.h"

namespace tarnwick {

// What `tarnwick auto` threw, in words.
struct AutoSummary {
  std::uint32_t seed = 0;
  std::vector<std::string> presets;  // with folder, without extension: "Surface/Wood/Barn"
  std::string surfaceColors;         // names of colour presets; empty: none drawn
  std::string backgroundColors;
  std::vector<std::string> textures;  // that take part
  // All fields that are not at their default, as --set takes them.
  std::vector<std::pair<std::string, std::string>> settings;
};

[[nodiscard]] AutoSummary SummarizeThrow(std::uint32_t seed, const AutoThrow& thrown,
                                         const std::filesystem::path& presetRoot,
                                         const EffectSettings& settings,
                                         const SettingsSession& session);

[[nodiscard]] std::string SummaryAsText(const AutoSummary& summary);
[[nodiscard]] std::string SummaryAsJson(const AutoSummary& summary);

}  // namespace tarnwick
