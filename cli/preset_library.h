#pragma once
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "data_folders.h"
#include "presets/preset_kind.h"

namespace tarnwick {

// A preset of the data folder.
struct PresetEntry {
  PresetKind kind = PresetKind::kUser;
  std::string name;  // with its sub-folder, without extension: "Wood/Old Barn"
  std::filesystem::path path;
};

// The kinds whose folders are searched, in this order.
inline constexpr PresetKind kSettingsKinds[] = {PresetKind::kBasic,      PresetKind::kUser,
                                                PresetKind::kWash,       PresetKind::kSurface,
                                                PresetKind::kBackground, PresetKind::kBackPalette};
inline constexpr PresetKind kColorKinds[] = {PresetKind::kSurfaceColor};
inline constexpr PresetKind kAllKinds[] = {PresetKind::kBasic,      PresetKind::kUser,
                                           PresetKind::kWash,       PresetKind::kSurface,
                                           PresetKind::kBackground, PresetKind::kSurfaceColor,
                                           PresetKind::kBackPalette};

// All presets under `root`, kind by kind, sorted by name; sub-folders count.
[[nodiscard]] std::vector<PresetEntry> ListPresets(const std::filesystem::path& root,
                                                   std::span<const PresetKind> kinds);

// The file that `given` means: a path as it is, if it leads to a file and looks
// like one (it has a "/" or the extension); else a name in the data folder, with
// or without sub-folder and extension, whatever its case. The first kind that
// has it wins; within it the more exact fit.
//
// Errors  wrong use, naming `option`, when it is unknown or fits two presets.
[[nodiscard]] std::filesystem::path FindPreset(const std::string& given, const std::string& option,
                                               const DataFolders& folders,
                                               std::span<const PresetKind> kinds);

}  // namespace tarnwick
