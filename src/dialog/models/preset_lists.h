#pragma once
#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "dialog/models/effect_views.h"
#include "presets/preset_kind.h"

namespace tarnwick {

// The lists of presets on the pages: where they stand, and what their rows are.
//
// A row is a text. That of a folder begins with a TAB, so that a sorted list has the
// folders on top; a TAB and ".." leads back. All others are presets, named as their
// files are but for the extension.

struct PresetList {
  PresetKind kind;
  int tab;
  int listId;
  int pathLabelId;  // shows the folder that the list is in
  int deleteId;     // 0: it cannot delete
  int saveId;       // 0: it cannot save
};

inline constexpr std::array<PresetList, 5> kPresetLists = {{
    {PresetKind::kBasic, kBasicTab, 1084, 1091, 0, 0},
    {PresetKind::kUser, kBasicTab, 1013, 1093, 1092, 1300},
    {PresetKind::kWash, kWashTab, 1085, 1094, 1087, 1382},
    {PresetKind::kSurface, kSurfaceTab, 1086, 1095, 1088, 1383},
    {PresetKind::kBackground, kBackgroundTab, 1012, 1096, 1046, 1045},
}};

// Null for the kinds that have no list.
[[nodiscard]] const PresetList* PresetListOf(PresetKind kind);
// Null where `id` is no list.
[[nodiscard]] const PresetList* PresetListOfId(int id);

// The first rows of the Basic list.
inline constexpr int kResetAllRow = 0;
inline constexpr int kLastUsedRow = 1;
inline constexpr std::string_view kResetAllText = "Reset All";
inline constexpr std::string_view kLastUsedText = "Last Used Settings";

// What a folder holds, in the platform's order.
struct FolderEntry {
  std::string name;
  bool isFolder = false;
  bool isArchived = false;  // a file with the archive attribute; others are not listed
};

// The rows of a list in their order of filling: what is built in, folders, presets.
// The way back is there only in a sub-folder, and no other folder whose name begins
// with a point.
[[nodiscard]] std::vector<std::string> PresetRows(PresetKind kind, bool isInSubFolder,
                                                  std::span<const FolderEntry> entries);

[[nodiscard]] inline bool IsFolderRow(std::string_view row) {
  return row.starts_with('\t');
}
[[nodiscard]] inline bool IsUpRow(std::string_view row) {
  return row == "\t..";
}

// A name as typed or as a file bears it, without its extension: a name of more than 7
// characters that ends in "twkpst", in any capitals, loses its last 7.
[[nodiscard]] std::string_view PresetNameOf(std::string_view name);

// What a control of a list tells its page.
enum class PresetEvent { kNone, kSelect, kOpen, kSave, kDelete };
struct PresetCommand {
  PresetEvent event = PresetEvent::kNone;
  const PresetList* list = nullptr;  // none with kNone
};

// By id and notification code of WM_COMMAND.
[[nodiscard]] PresetCommand PresetCommandOf(int id, int notification);

}  // namespace tarnwick
