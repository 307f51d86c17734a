#pragma once
#include <string>

namespace tarnwick {

// Where the module finds its files. All from the module's own name.
struct Folders {
  std::string modulePath;    // with a separator at its end
  std::string dataFolder;    // textures and their thumbnails
  std::string helpFolder;    // with a separator at its end
  std::string presetFolder;  // with a separator at its end
  std::string colorFolder;
  std::string backPaletteFolder;  // with a separator at its end
};

// The name that the module's file is expected to have.
inline constexpr char kModuleFileName[] = "TarnikStudi.8bf";

// Odd, and kept: the module's folder is found by cutting as many characters as
// kModuleFileName has off `moduleFile`, so a module that was given a name of
// another length gets a wrong folder. A name too short for that gives an empty
// one. Names of 1024 bytes or more are not used: all folders stay empty.
[[nodiscard]] Folders FoldersOf(const std::string& moduleFile);

}  // namespace tarnwick
