#include "presets/color_list.h"

#include "base/native_path.h"
#include "presets/color_preset.h"
#include "presets/preset_file.h"
#include "settings/ascii_text.h"

namespace tarnwick {
namespace {

constexpr std::string_view kExtension = ".twkpst";

}  // namespace

std::vector<ColorRecord> ListColorPresets(const std::filesystem::path& folder,
                                          std::span<const std::string> names) {
  std::vector<ColorRecord> records;
  records.reserve(names.size() + 1);
  records.push_back({kResetColorsName, {}});
  for (const std::string& name : names) {
    std::string category;
    (void)ReadColorCategoryOf(folder / PathOfName(name), category);
    records.push_back({name, SplitCategories(category)});
  }
  return records;
}

std::vector<int> FilterColors(std::span<const ColorRecord> records, int row,
                              std::string_view text) {
  std::vector<int> shown;
  for (std::size_t i = 0; i < records.size(); ++i) {
    if (i == 0 || PassesCategory(records[i].categories, row, text)) {
      shown.push_back(static_cast<int>(i));
    }
  }
  return shown;
}

bool ReadColorCategoryOf(const std::filesystem::path& path, std::string& category) {
  std::string bytes;
  return ReadPresetBytes(path, bytes) == PresetLoad::kLoaded && ReadColorCategory(bytes, category);
}

std::string ColorDisplayName(const std::string& fileName) {
  const bool strips = fileName.size() >= kExtension.size() && fileName.ends_with(kExtension);
  return strips ? fileName.substr(0, fileName.size() - kExtension.size()) : fileName;
}

std::vector<std::string> ListBackPalettes(std::span<const std::string> fileNames) {
  std::vector<std::string> names;
  for (const std::string& file : fileNames) {
    if (file.size() <= kExtension.size()) continue;
    const std::size_t stem = file.size() - kExtension.size();
    if (!EqualIgnoringCase(std::string_view(file).substr(stem), kExtension)) continue;
    if (names.empty()) names.emplace_back(kNoPaletteName);
    if (!EqualIgnoringCase(std::string_view(file).substr(0, stem), kNoPaletteName)) {
      names.push_back(file.substr(0, stem));
    }
  }
  return names;
}

}  // namespace tarnwick
