#pragma once
#include <array>
#include <string>
#include <string_view>

#include "presets/preset_kind.h"

namespace tarnwick {

// Where presets lie: the tree's root, a folder for each kind in it, and the sub-folder
// in which each list stands. Names are 8-bit texts with the separators of Windows.
class PresetFolders {
 public:
  static constexpr std::size_t kLongestSubFolder = 255;

  // All lists stand in the folders of their kinds. `root` as the environment tells it.
  explicit PresetFolders(std::string root) : root_(std::move(root)) {}

  // Empty, or with a separator at its end. Always empty for colours and back palettes.
  [[nodiscard]] const std::string& SubFolder(PresetKind kind) const;

  // Where a double click on a row leads. False, and nothing changed, for a row that
  // is no folder and for one that lies too deep for the sub-folder's length.
  [[nodiscard]] bool Enter(PresetKind kind, std::string_view row);

  // The folder that the list shows, with a separator at its end.
  [[nodiscard]] std::string Folder(PresetKind kind) const;
  // A preset in it.
  [[nodiscard]] std::string File(PresetKind kind, std::string_view name) const;
  // The preset of this name in the folder of the kind itself. Odd, and kept: this is
  // where saving looks for one to be overwritten, whichever sub-folder it writes to.
  [[nodiscard]] std::string TopFile(PresetKind kind, std::string_view name) const;

 private:
  static constexpr std::size_t kListedKinds = 5;
  [[nodiscard]] std::string* Place(PresetKind kind);

  std::string root_;
  std::array<std::string, kListedKinds> subFolders_;
};

}  // namespace tarnwick
