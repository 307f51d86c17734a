#pragma once
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// A named group of textures. A texture's header holds the number.
struct TextureSetEntry {
  std::uint32_t id = 0;
  std::string name;  // 1..kMaxSetName bytes
};

inline constexpr std::size_t kMaxSetName = 63;

// The sets in the order in which filters offer them; row n of a filter box,
// counting "all" as 0, is the n-th entry.
using TextureSetTable = std::vector<TextureSetEntry>;

// The file of the data folder that holds the table.
inline constexpr char kTextureSetFile[] = "Texture Sets.txt";

// A line of the table that could not be taken as it stands.
struct SetTableFault {
  int line = 0;      // from 1
  std::string text;  // complete, without the line's number
};

// Reads the table: a line for each set, its number, a TAB, its name. Blanks
// around both are dropped, empty lines and those that begin with ";" skipped;
// lines may end in CR LF, the last one without any.
//
// A line that says nothing usable, or a number or name that an earlier line
// has, is told and passed over; a name that is too long is told and cut. All
// other lines count.
[[nodiscard]] TextureSetTable ParseTextureSets(std::string_view text,
                                               std::vector<SetTableFault>& faults);

// The same from a file. False, and the table empty, if it cannot be read.
[[nodiscard]] bool LoadTextureSets(const std::filesystem::path& path, TextureSetTable& sets,
                                   std::vector<SetTableFault>& faults);

// The file's text for these sets, with a line on its form at the top.
[[nodiscard]] std::string TextureSetText(const TextureSetTable& sets);

// The name of a number, empty if no set has it.
[[nodiscard]] std::string FindSetName(const TextureSetTable& sets, std::uint32_t id);

// The row, from 1, of the set with this name in any case; 0 if there is none.
[[nodiscard]] int FindSetRow(const TextureSetTable& sets, std::string_view name);

}  // namespace tarnwick
