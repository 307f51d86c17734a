#include "presets/preset_file.h"

#include <fstream>
#include <system_error>

#include "base/unused_name.h"
#include "presets/preset_reader.h"
#include "presets/preset_writer.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

// Through a link the file that it names is replaced, not the link.
fs::path TargetOf(const fs::path& path) {
  std::error_code error;
  if (!fs::is_symlink(path, error)) return path;
  const fs::path target = fs::canonical(path, error);
  return error ? path : target;
}

bool WriteWhole(std::ofstream& file, const std::string& text) {
  file.write(text.data(), static_cast<std::streamsize>(text.size()));
  file.close();
  return !file.fail();
}

}  // namespace

PresetLoad ReadPresetBytes(const fs::path& path, std::string& bytes) {
  bytes.clear();
  // A folder opens like a file on some systems and fails at its first byte.
  std::error_code error;
  if (fs::is_directory(path, error)) return PresetLoad::kCannotOpen;
  std::ifstream file(path, std::ios::binary);
  if (!file) return PresetLoad::kCannotOpen;
  char part[4096];
  while (file.read(part, sizeof part), file.gcount() > 0) {
    bytes.append(part, static_cast<std::size_t>(file.gcount()));
    if (bytes.size() > kMaxPresetBytes) {
      bytes.clear();
      return PresetLoad::kTooLarge;
    }
  }
  if (file.bad()) {
    bytes.clear();
    return PresetLoad::kCannotRead;
  }
  return PresetLoad::kLoaded;
}

PresetLoad LoadPresetFile(const fs::path& path, EffectSettings& settings, PresetSession& session) {
  std::string bytes;
  const PresetLoad outcome = ReadPresetBytes(path, bytes);
  if (outcome != PresetLoad::kLoaded) return outcome;
  return ReadPreset(bytes, settings, session) ? PresetLoad::kLoaded : PresetLoad::kNotAPreset;
}

PresetSave SavePresetFile(const fs::path& path, PresetKind kind, const EffectSettings& settings,
                          const SettingsSession& session) {
  const fs::path target = TargetOf(path);
  const fs::path fresh = UnusedNameBeside(target);
  std::ofstream file(fresh, std::ios::binary);
  if (!file) return PresetSave::kCannotCreate;
  std::error_code error;
  if (!WriteWhole(file, PresetText(kind, settings, session))) {
    fs::remove(fresh, error);
    return PresetSave::kCannotWrite;
  }
  fs::rename(fresh, target, error);
  if (!error) return PresetSave::kSaved;
  fs::remove(fresh, error);
  return PresetSave::kCannotReplace;
}

const char* DescribePresetLoad(PresetLoad outcome) {
  switch (outcome) {
    case PresetLoad::kLoaded:
      return "loaded";
    case PresetLoad::kCannotOpen:
      return "cannot be opened";
    case PresetLoad::kCannotRead:
      return "cannot be read";
    case PresetLoad::kTooLarge:
      return "is larger than any preset";
    case PresetLoad::kNotAPreset:
      return "is not a preset: its first line is another";
    case PresetLoad::kNoColors:
      return "holds no colours";
  }
  return "";
}

const char* DescribePresetSave(PresetSave outcome) {
  switch (outcome) {
    case PresetSave::kSaved:
      return "saved";
    case PresetSave::kCannotCreate:
      return "cannot be created";
    case PresetSave::kCannotWrite:
      return "cannot be written";
    case PresetSave::kCannotReplace:
      return "cannot be replaced";
  }
  return "";
}

}  // namespace tarnwick
