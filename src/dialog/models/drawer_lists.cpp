#include "dialog/models/drawer_lists.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "base/native_path.h"
#include "presets/color_list.h"
#include "settings/ascii_text.h"
#include "textures/texture_catalogue.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> TexturesOf(const std::string& folder) {
  std::vector<std::string> names;
  for (TextureRecord& record :
       ListTextures(folder, ScanTextureNames(PathOfName(folder)), FirstTexture::kMove)) {
    names.push_back(std::move(record.fileName));
  }
  return names;
}

// Without their categories no file has to be opened.
std::vector<std::string> ColorsOf(const std::string& folder) {
  constexpr std::string_view kExtension = ".twkpst";
  std::vector<std::string> names = {kResetColorsName};
  std::error_code fault;
  for (fs::directory_iterator entry(PathOfName(folder), fault), end; !fault && entry != end;
       entry.increment(fault)) {
    const std::string name = NameOfPath(entry->path().filename());
    std::error_code unknown;
    if (name.size() <= kExtension.size() || entry->is_directory(unknown)) continue;
    const std::size_t stem = name.size() - kExtension.size();
    if (EqualIgnoringCase(std::string_view(name).substr(stem), kExtension)) {
      names.push_back(name.substr(0, stem));
    }
  }
  return names;
}

}  // namespace

DrawerLists UnfilteredDrawers(const std::string& dataFolder, const std::string& colorFolder) {
  return {[dataFolder] { return TexturesOf(dataFolder); },
          [colorFolder] { return ColorsOf(colorFolder); }};
}

AutoLibrary AutoLibraryOf(const std::string& presetFolder, const DrawerLists& drawers,
                          std::function<std::uint32_t()> seconds) {
  AutoLibrary library;
  library.presetRoot = PathOfName(presetFolder);
  library.order = FolderOrder::kAsScanned;
  if (drawers.textures) library.textures = drawers.textures();
  if (drawers.colors) library.colors = drawers.colors();
  library.seconds = std::move(seconds);
  return library;
}

}  // namespace tarnwick
