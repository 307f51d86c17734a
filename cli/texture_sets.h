#pragma once
#include <cstdint>
#include <filesystem>
#include <string>

#include "console.h"
#include "textures/texture_set_table.h"

namespace tarnwick {

// The table of sets of a folder of textures; empty if it has none. What is odd
// in it is told as warnings.
[[nodiscard]] TextureSetTable LoadSetsOf(const std::filesystem::path& folder, Console& console);

// The set's name, or its number where the table has none for it.
[[nodiscard]] std::string SetLabel(const TextureSetTable& sets, std::uint32_t id);

// The number of the set called `name`; wrong use, naming `option`, if there is
// none.
[[nodiscard]] std::uint32_t RequireSet(const TextureSetTable& sets, const std::string& name,
                                       const std::string& option);

}  // namespace tarnwick
