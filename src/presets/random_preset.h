#pragma once
#include <filesystem>
#include <optional>

#include "presets/auto_dice.h"

namespace tarnwick {

// In which order a folder's entries are counted.
enum class FolderOrder {
  kAsScanned,  // as the platform gives them
  kByName,     // the same on every machine
};

// A file somewhere in `folder`: one entry is drawn, and where that is a folder,
// one of its entries, and so on. So a sub-folder counts as one entry, however
// much it holds. All files count, whatever they are.
//
// Nothing, and no throw for it, from a folder that is empty or cannot be read.
[[nodiscard]] std::optional<std::filesystem::path> PickRandomPreset(
    const std::filesystem::path& folder, FolderOrder order, AutoDice& dice);

}  // namespace tarnwick
