#pragma once
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "option_parser.h"

namespace tarnwick {

// Where textures and presets lie, and how that was found out.
class DataFolders {
 public:
  // By --textures and --presets, each alone or both; else by --data; else by
  // looking at the usual places (UsualDataFolders). A folder that was named but
  // is not there is wrong use; one that is only looked for may be missing.
  explicit DataFolders(const ParsedArguments& arguments);

  // Wrong use, naming the places looked at, when there is none.
  [[nodiscard]] const std::filesystem::path& Textures() const;
  [[nodiscard]] const std::filesystem::path& Presets() const;

  [[nodiscard]] bool HasTextures() const { return textures_.has_value(); }
  [[nodiscard]] bool HasPresets() const { return presets_.has_value(); }

 private:
  std::optional<std::filesystem::path> textures_;
  std::optional<std::filesystem::path> presets_;
};

// The rows --data, --textures and --presets for a command's table.
inline constexpr OptionRow kDataOption = {
    "data", 0, "DIR", "data folder: textures in it, presets in its folder Presets"};
inline constexpr OptionRow kTexturesOption = {"textures", 0, "DIR",
                                              "folder of the textures (.twk)"};
inline constexpr OptionRow kPresetsOption = {
    "presets", 0, "DIR", "folder with the presets' folders Basic, User, Wash ..."};

// The places looked at, in order: $TARNWICK_DATA, "Tarnwick Studio" beside the
// program, ../share/tarnwick from it, and "Tarnwick Studio" one folder up.
[[nodiscard]] std::vector<std::filesystem::path> UsualDataFolders();

// The entry of `folder` that is called `name` but for the case of letters: one
// of just this spelling before any other, nothing if two others fit or none.
[[nodiscard]] std::optional<std::string> SpellingIn(const std::filesystem::path& folder,
                                                    const std::string& name);

// The names of the folder's ".twk" files, sorted; empty if it cannot be read.
[[nodiscard]] std::vector<std::string> TextureNames(const std::filesystem::path& folder);

}  // namespace tarnwick
