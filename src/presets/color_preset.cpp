#include "presets/color_preset.h"

#include "presets/preset_lines.h"
#include "presets/preset_reader.h"

namespace tarnwick {
namespace {

constexpr int kCategoryLine = 4;

bool IsTone(std::uint32_t key) {
  return key == kHighlightColorKey || key == kMidtoneColorKey || key == kShadowColorKey;
}

}  // namespace

bool ReadColorCategory(std::string_view bytes, std::string& category) {
  PresetSource source{bytes};
  PresetLine line;
  for (int i = 0; i < kCategoryLine; ++i) {
    if (!ReadPresetLine(source, line)) return false;
  }
  PresetCursor cursor(line);
  cursor.SkipBlanks();
  if (cursor.TakeKey() != kCategoryKey) return false;
  cursor.SkipBlanks();
  category = cursor.TakeText();
  return true;
}

PresetLoad ReadColorPreset(std::string_view bytes, ColorPreset& colors) {
  PresetSource source{bytes};
  PresetLine line;
  if (!ReadPresetLine(source, line) || !IsPresetHeader(line)) return PresetLoad::kNotAPreset;
  // Whatever else the file holds is not for the caller's settings.
  EffectSettings unused;
  SettingsSession unusedLinks;
  PresetSession session(unusedLinks);
  bool hasTone = false;
  while (ReadPresetLine(source, line)) {
    hasTone = IsTone(ApplyPresetLine(line, unused, session).key) || hasTone;
  }
  if (!hasTone) return PresetLoad::kNoColors;
  colors = {
      session.PresetHighlightColor, session.PresetMidtoneColor, session.PresetShadowColor, {}};
  if (!ReadColorCategory(bytes, colors.category)) colors.category.clear();
  return PresetLoad::kLoaded;
}

PresetLoad LoadColorPreset(const std::filesystem::path& path, ColorPreset& colors) {
  std::string bytes;
  const PresetLoad outcome = ReadPresetBytes(path, bytes);
  return outcome == PresetLoad::kLoaded ? ReadColorPreset(bytes, colors) : outcome;
}

void UseAsSurfaceColors(const ColorPreset& colors, std::string_view name, EffectSettings& settings,
                        SettingsSession& session) {
  settings.SurfaceHighlightColor = colors.highlight;
  settings.SurfaceMidtoneColor = colors.midtone;
  settings.SurfaceShadowColor = colors.shadow;
  session.SurfaceColorCategory = name.substr(0, kMaxCategoryName);
}

void UseAsBackgroundColors(const ColorPreset& colors, std::string_view name,
                           EffectSettings& settings, SettingsSession& session) {
  settings.BackgroundHighlightColor = colors.highlight;
  settings.BackgroundMidtoneColor = colors.midtone;
  settings.BackgroundShadowColor = colors.shadow;
  session.BackgroundColorCategory = name.substr(0, kMaxCategoryName);
}

}  // namespace tarnwick
