// tarnwick-filing: the files of the data folder by which the library is looked
// through: the table of sets, and the pictures beside the back palettes.
#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>

#include "builder/texture_sets.h"
#include "presets/preset_file.h"
#include "textures/palette_cell.h"
#include "textures/texture_set_table.h"
#include "textures/thumbnail_file.h"

namespace tarnwick::content {
namespace {

namespace fs = std::filesystem;

constexpr int kDone = 0, kFailed = 1, kWrongUse = 2;

constexpr const char* kHelp =
    "Usage: tarnwick-filing sets FILE\n"
    "         writes the table of the texture sets\n"
    "       tarnwick-filing palette PRESET TEXTURES FILE.bmp\n"
    "         makes the filmstrip's picture of a back palette, whose texture lies in\n"
    "         the folder TEXTURES\n";

int Fail(const std::string& what, const std::string& why) {
  std::fprintf(stderr, "tarnwick-filing: %s: %s\n", what.c_str(), why.c_str());
  return kFailed;
}

int WriteSets(const fs::path& path) {
  TextureSetTable sets;
  for (const TextureSetName& entry : kTextureSets) {
    sets.push_back({static_cast<std::uint32_t>(entry.set), std::string(entry.name)});
  }
  const std::string text = TextureSetText(sets);
  std::error_code error;
  fs::create_directories(path.parent_path(), error);
  std::FILE* const file = std::fopen(path.c_str(), "wb");
  if (file == nullptr) return Fail(path.string(), "cannot be made");
  const bool whole = std::fwrite(text.data(), 1, text.size(), file) == text.size();
  if (std::fclose(file) == 0 && whole) return kDone;
  return Fail(path.string(), "cannot be written");
}

int MakePalette(const fs::path& preset, const std::string& textures, const std::string& bitmap) {
  EffectSettings settings;
  SettingsSession links;
  InitSettingsToDefaults(settings, links);
  PresetSession session(links);
  const PresetLoad outcome = LoadPresetFile(preset, settings, session);
  if (outcome != PresetLoad::kLoaded) return Fail(preset.string(), DescribePresetLoad(outcome));
  const auto cell = MakePaletteCell(settings, textures);
  if (!cell) {
    return Fail(preset.string(), "its texture " + std::string(settings.BackgroundFileName) +
                                     " cannot be read in " + textures);
  }
  return WriteThumbnail(bitmap, *cell) ? kDone : Fail(bitmap, "cannot be written");
}

int Run(int argc, char** argv) {
  const std::string command = argc > 1 ? argv[1] : "";
  if (command == "--help") return std::fputs(kHelp, stdout), kDone;
  if (command == "sets" && argc == 3) return WriteSets(argv[2]);
  if (command == "palette" && argc == 5) return MakePalette(argv[2], argv[3], argv[4]);
  return std::fputs(kHelp, stderr), kWrongUse;
}

}  // namespace
}  // namespace tarnwick::content

int main(int argc, char** argv) {
  return tarnwick::content::Run(argc, argv);
}
