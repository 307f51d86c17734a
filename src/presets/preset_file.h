#pragma once
#include <cstdint>
#include <filesystem>
#include <string>

#include "presets/preset_kind.h"
#include "presets/preset_session.h"

namespace tarnwick {

// Presets as files. Messages name the fault without the path, to follow it and
// a colon.

// Larger files are refused: a preset has a few kilobytes.
inline constexpr std::uintmax_t kMaxPresetBytes = 1024 * 1024;

enum class PresetLoad {
  kLoaded,
  kCannotOpen,
  kCannotRead,
  kTooLarge,
  kNotAPreset,  // the first line is not the header
  kNoColors,    // for colour presets: none of the three tones is in it
};

enum class PresetSave {
  kSaved,
  kCannotCreate,
  kCannotWrite,
  kCannotReplace,  // the finished file could not take the place of the old one
};

// The bytes of a file, for the readers. On an error `bytes` is empty.
[[nodiscard]] PresetLoad ReadPresetBytes(const std::filesystem::path& path, std::string& bytes);

// Opens, checks the header and reads the body into the record. Unless kLoaded,
// nothing is changed.
[[nodiscard]] PresetLoad LoadPresetFile(const std::filesystem::path& path, EffectSettings& settings,
                                        PresetSession& session);

// Writes to a new file in the same folder, then renames it over `path`: on an
// error the old file stands as it was. Overwrites without a question.
[[nodiscard]] PresetSave SavePresetFile(const std::filesystem::path& path, PresetKind kind,
                                        const EffectSettings& settings,
                                        const SettingsSession& session);

[[nodiscard]] const char* DescribePresetLoad(PresetLoad outcome);
[[nodiscard]] const char* DescribePresetSave(PresetSave outcome);

}  // namespace tarnwick
