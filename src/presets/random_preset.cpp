#include "presets/random_preset.h"

#include <algorithm>
#include <system_error>
#include <vector>

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> EntriesOf(const fs::path& folder, FolderOrder order) {
  std::vector<fs::path> entries;
  std::error_code fault;
  for (fs::directory_iterator entry(folder, fault), end; !fault && entry != end;
       entry.increment(fault)) {
    entries.push_back(entry->path());
  }
  if (order == FolderOrder::kByName) std::ranges::sort(entries);
  return entries;
}

}  // namespace

std::optional<fs::path> PickRandomPreset(const fs::path& folder, FolderOrder order,
                                         AutoDice& dice) {
  fs::path picked = folder;
  std::error_code fault;
  do {
    const std::vector<fs::path> entries = EntriesOf(picked, order);
    if (entries.empty()) return std::nullopt;
    picked = entries[static_cast<std::size_t>(dice.Below(static_cast<int>(entries.size())))];
  } while (fs::is_directory(picked, fault));
  return picked;
}

}  // namespace tarnwick
