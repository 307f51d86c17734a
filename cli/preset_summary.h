#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "presets/preset_file.h"

namespace tarnwick {

// What a preset sets, in words.
struct PresetSummary {
  std::int32_t version = 2;
  std::string category;  // of a colour preset, may be empty
  // Fields in the order of their first line, with the value they end up with:
  // as --set takes it.
  std::vector<std::pair<std::string, std::string>> fields;
  // Highlight, midtone, shadow of a colour preset, "#rrggbb"; those it has.
  std::vector<std::pair<std::string, std::string>> colors;
};

// kNotAPreset without the header.
[[nodiscard]] PresetLoad SummarizePreset(std::string_view bytes, PresetSummary& summary);

[[nodiscard]] std::string SummaryAsText(const std::string& path, const PresetSummary& summary);
[[nodiscard]] std::string SummaryAsJson(const std::string& path, const PresetSummary& summary);

}  // namespace tarnwick
