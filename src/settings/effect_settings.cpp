#include "settings/effect_settings.h"

#include "settings/settings_access.h"

namespace tarnwick {
namespace {

void ResetBlock(SettingBlock block, EffectSettings& settings, SettingsSession& session) {
  for (const SettingField& field : SettingsTable()) {
    if (field.block == block) StoreSettingDefault(field, settings, session);
  }
}

// For blocks that lie in the record alone.
void ResetBlock(SettingBlock block, EffectSettings& settings) {
  SettingsSession unused;
  ResetBlock(block, settings, unused);
}

}  // namespace

void InitSettingsToDefaults(EffectSettings& settings, SettingsSession& session) {
  ResetBlock(SettingBlock::kBatch, settings);
  ResetBlock(SettingBlock::kSnapshot, settings);
  ResetAllSettings(settings, session);
}

void ResetAllSettings(EffectSettings& settings, SettingsSession& session) {
  ResetBlock(SettingBlock::kFrame, settings);
  ResetBlock(SettingBlock::kOutput, settings);
  ResetBlock(SettingBlock::kSwitches, settings);
  ResetWash1(settings);
  ResetBlock(SettingBlock::kWashName1, settings);
  ResetWash2(settings);
  ResetBlock(SettingBlock::kWashName2, settings);
  ResetBackground(settings, session);
  ResetBlock(SettingBlock::kBackgroundName, settings);
  ResetSurface1(settings, session);
  ResetBlock(SettingBlock::kSurfaceName1, settings);
  ResetSurface2(settings);
  ResetBlock(SettingBlock::kSurfaceName2, settings);
  ResetSurfaceCommon(settings);
  ResetBlock(SettingBlock::kPasses, settings);
  ResetBlock(SettingBlock::kAddresses, settings);
  ResetBlock(SettingBlock::kCarried, settings);
  session.PickerLivePreview = 0;
}

void ResetWash1(EffectSettings& settings) {
  ResetBlock(SettingBlock::kWash1, settings);
}

void ResetWash2(EffectSettings& settings) {
  ResetBlock(SettingBlock::kWash2, settings);
}

void ResetBackground(EffectSettings& settings, SettingsSession& session) {
  ResetBlock(SettingBlock::kBackground, settings, session);
}

void ResetSurface1(EffectSettings& settings, SettingsSession& session) {
  ResetBlock(SettingBlock::kSurface1, settings, session);
}

void ResetSurface2(EffectSettings& settings) {
  ResetBlock(SettingBlock::kSurface2, settings);
}

void ResetSurfaceCommon(EffectSettings& settings) {
  ResetBlock(SettingBlock::kSurfaceCommon, settings);
  ResetSurfaceColors(settings);
}

void ResetSurfaceColors(EffectSettings& settings) {
  ResetBlock(SettingBlock::kSurfaceColors, settings);
}

}  // namespace tarnwick
