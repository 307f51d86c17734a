// Any bytes as a preset: reading ends, what was read can be written, and a
// written preset reads back to the same text.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "presets/color_preset.h"
#include "presets/preset_check.h"
#include "presets/preset_reader.h"
#include "presets/preset_writer.h"
#include "settings/settings_text.h"

namespace {

using namespace tarnwick;

std::string Rewritten(std::string_view bytes) {
  EffectSettings settings;
  SettingsSession links;
  InitSettingsToDefaults(settings, links);
  PresetSession session(links);
  PresetSource source{bytes};
  ReadPresetBody(source, settings, session);
  for (const SettingField& field : SettingsTable()) {
    if (SettingAsText(field, settings, links).empty()) continue;
    static_cast<void>(SettingIsInRange(field, settings, links));
  }
  return PresetText(PresetKind::kUser, settings, links);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  // The first rewriting may lose what a preset cannot hold: a name that begins
  // with a blank, a float's third decimal. The second has nothing left to lose.
  const std::string once = Rewritten(bytes);
  const std::string twice = Rewritten(once);
  if (Rewritten(twice) != twice) std::abort();

  static_cast<void>(CheckPreset(bytes));
  static_cast<void>(CheckPreset(once));
  ColorPreset colors;
  static_cast<void>(ReadColorPreset(bytes, colors));
  std::string category;
  static_cast<void>(ReadColorCategory(bytes, category));
  return 0;
}
