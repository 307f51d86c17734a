#include "preset_save.h"

#include <string>

#include "cli_error.h"
#include "output_file.h"
#include "presets/preset_file.h"
#include "settings/ascii_text.h"

namespace tarnwick {

void SavePreset(const std::filesystem::path& target, PresetKind kind, bool force,
                const EffectSettings& settings, const SettingsSession& session) {
  RequireWritableTarget(target);
  const std::string extension = "." + std::string(kPresetExtension);
  if (!EqualIgnoringCase(target.extension().string(), extension)) {
    FailUse(target.string(), "the name of a preset ends in " + extension, "add it");
  }
  OutputFile file(target, force);
  const PresetSave outcome = SavePresetFile(file.TemporaryPath(), kind, settings, session);
  if (outcome != PresetSave::kSaved) {
    FailInput(target.string(), DescribePresetSave(outcome), "check disk space");
  }
  file.Commit();
}

}  // namespace tarnwick
