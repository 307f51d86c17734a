#include "dialog/models/preset_lists.h"

#include <algorithm>

#include "settings/ascii_text.h"

namespace tarnwick {
namespace {

// As windows.h has them.
constexpr int kSelectionChanged = 1;
constexpr int kDoubleClick = 2;
constexpr int kClicked = 0;

constexpr std::string_view kDottedExtension = ".twkpst";

bool EndsIn(std::string_view name, std::string_view end) {
  return name.size() >= end.size() && EqualIgnoringCase(name.substr(name.size() - end.size()), end);
}

bool IsListedFolder(const FolderEntry& entry, bool isInSubFolder) {
  if (!entry.isFolder || entry.name.empty()) return false;
  return entry.name[0] != '.' || (isInSubFolder && entry.name == "..");
}

template <class Fits>
const PresetList* Find(Fits fits) {
  const auto* const found = std::ranges::find_if(kPresetLists, fits);
  return found == kPresetLists.end() ? nullptr : found;
}

}  // namespace

const PresetList* PresetListOf(PresetKind kind) {
  return Find([&](const PresetList& list) { return list.kind == kind; });
}

const PresetList* PresetListOfId(int id) {
  return Find([&](const PresetList& list) { return list.listId == id; });
}

std::vector<std::string> PresetRows(PresetKind kind, bool isInSubFolder,
                                    std::span<const FolderEntry> entries) {
  std::vector<std::string> rows;
  if (kind == PresetKind::kBasic) {
    rows.emplace_back(kResetAllText);
    rows.emplace_back(kLastUsedText);
  }
  for (const FolderEntry& entry : entries) {
    if (IsListedFolder(entry, isInSubFolder)) rows.push_back('\t' + entry.name);
  }
  for (const FolderEntry& entry : entries) {
    if (!entry.isFolder && entry.isArchived && EndsIn(entry.name, kDottedExtension)) {
      rows.emplace_back(PresetNameOf(entry.name));
    }
  }
  return rows;
}

std::string_view PresetNameOf(std::string_view name) {
  const std::size_t length = kDottedExtension.size();
  if (name.size() > length && EndsIn(name, kPresetExtension)) name.remove_suffix(length);
  return name;
}

PresetCommand PresetCommandOf(int id, int notification) {
  for (const PresetList& list : kPresetLists) {
    if (id == list.listId) {
      if (notification == kSelectionChanged) return {PresetEvent::kSelect, &list};
      if (notification == kDoubleClick) return {PresetEvent::kOpen, &list};
    }
    if (notification != kClicked || id == 0) continue;
    if (id == list.saveId) return {PresetEvent::kSave, &list};
    if (id == list.deleteId) return {PresetEvent::kDelete, &list};
  }
  return {};
}

}  // namespace tarnwick
