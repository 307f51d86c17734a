#include "data_folders.h"

#include <algorithm>
#include <cstdlib>
#include <system_error>

#include "cli_error.h"
#include "settings/ascii_text.h"
#include "textures/texture_catalogue.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr char kDataVariable[] = "TARNWICK_DATA";
constexpr char kDataFolderName[] = "Tarnwick Studio";

bool IsFolder(const fs::path& path) {
  std::error_code fault;
  return fs::is_directory(path, fault);
}

fs::path NamedFolder(const std::string& option, const std::string& value) {
  if (!IsFolder(value)) FailUse(value, "no such folder", "check " + option);
  return value;
}

std::optional<fs::path> FindDataFolder() {
  if (const char* told = std::getenv(kDataVariable); told != nullptr && *told != '\0') {
    return NamedFolder(std::string("the variable ") + kDataVariable, told);
  }
  for (const fs::path& place : UsualDataFolders()) {
    if (IsFolder(place)) return place;
  }
  return std::nullopt;
}

const fs::path& Found(const std::optional<fs::path>& folder, const std::string& what) {
  if (folder) return *folder;
  std::string places;
  for (const fs::path& place : UsualDataFolders()) {
    places += (places.empty() ? "" : ", ") + place.string();
  }
  FailUse(what, "not found in " + places, std::string("give --data DIR or set ") + kDataVariable);
}

}  // namespace

DataFolders::DataFolders(const ParsedArguments& arguments) {
  const std::string* data = arguments.Value("data");
  const std::string* textures = arguments.Value("textures");
  const std::string* presets = arguments.Value("presets");
  if (data != nullptr && (textures != nullptr || presets != nullptr)) {
    FailUse("--data", "excludes --textures and --presets", "give one or the others");
  }
  if (textures != nullptr) textures_ = NamedFolder("--textures", *textures);
  if (presets != nullptr) presets_ = NamedFolder("--presets", *presets);
  if (textures_ && presets_) return;
  const std::optional<fs::path> base =
      data != nullptr ? NamedFolder("--data", *data) : FindDataFolder();
  if (!base) return;
  if (!textures_) textures_ = *base;
  if (!presets_ && IsFolder(*base / "Presets")) presets_ = *base / "Presets";
}

const fs::path& DataFolders::Textures() const {
  return Found(textures_, "folder of textures");
}

const fs::path& DataFolders::Presets() const {
  return Found(presets_, "folder of presets");
}

std::vector<fs::path> UsualDataFolders() {
  std::vector<fs::path> places;
  if (const char* told = std::getenv(kDataVariable); told != nullptr && *told != '\0') {
    places.emplace_back(told);
  }
  std::error_code fault;
  const fs::path program = fs::read_symlink("/proc/self/exe", fault);
  if (fault) return places;
  const fs::path folder = program.parent_path();
  places.push_back(folder / kDataFolderName);
  places.push_back(folder.parent_path() / "share" / "tarnwick");
  places.push_back(folder.parent_path() / kDataFolderName);
  return places;
}

std::optional<std::string> SpellingIn(const fs::path& folder, const std::string& name) {
  std::error_code fault;
  if (fs::exists(folder / name, fault)) return name;
  std::optional<std::string> found;
  for (fs::directory_iterator entry(folder, fault), end; !fault && entry != end;
       entry.increment(fault)) {
    const std::string spelled = entry->path().filename().string();
    if (!EqualIgnoringCase(spelled, name)) continue;
    if (found) return std::nullopt;
    found = spelled;
  }
  return found;
}

std::vector<std::string> TextureNames(const fs::path& folder) {
  std::vector<std::string> names = ScanTextureNames(folder);
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace tarnwick
