#include "environment/folders.h"

#include <cstring>

namespace tarnwick {
namespace {

#ifdef _WIN32
constexpr char kSeparator[] = "\\";
#else
constexpr char kSeparator[] = "/";
#endif
constexpr std::size_t kLongestPath = 1023;

}  // namespace

Folders FoldersOf(const std::string& moduleFile) {
  Folders folders;
  const std::size_t nameLength = std::strlen(kModuleFileName);
  if (moduleFile.size() < nameLength) return folders;
  folders.modulePath = moduleFile.substr(0, moduleFile.size() - nameLength);
  folders.dataFolder = folders.modulePath + "Tarnwick Studio";
  folders.helpFolder = folders.dataFolder + kSeparator + "Help" + kSeparator;
  folders.presetFolder = folders.dataFolder + kSeparator + "Presets" + kSeparator;
  folders.colorFolder = folders.presetFolder + "Colors";
  folders.backPaletteFolder = folders.presetFolder + "BackPalette" + kSeparator;
  return folders.backPaletteFolder.size() > kLongestPath ? Folders{} : folders;
}

}  // namespace tarnwick
