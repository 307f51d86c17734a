#pragma once
#include <functional>
#include <string>
#include <vector>

#include "presets/auto_randomize.h"

namespace tarnwick {

// What the drawers offer, for chance to choose from. Asked at each throw, so that it
// follows their filters.
struct DrawerLists {
  // File names, "No_Texture.twk" first. Empty where there are none.
  std::function<std::vector<std::string>()> textures;
  // Names without extension, "Reset Colors" first. Empty: there is no such drawer.
  std::function<std::vector<std::string>()> colors;
};

// As drawers without a filter show the two folders, which are read at each call.
// Folders may end in a separator.
[[nodiscard]] DrawerLists UnfilteredDrawers(const std::string& dataFolder,
                                            const std::string& colorFolder);

// The library of the Auto button, as it is now. `presetFolder` holds the folders of the
// kinds. Unset functions offer nothing.
[[nodiscard]] AutoLibrary AutoLibraryOf(const std::string& presetFolder, const DrawerLists& drawers,
                                        std::function<std::uint32_t()> seconds);

}  // namespace tarnwick
