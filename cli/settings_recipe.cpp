#include "settings_recipe.h"

#include <optional>
#include <string_view>
#include <tuple>
#include <utility>

#include "cli_error.h"
#include "did_you_mean.h"
#include "engine/render_layers.h"
#include "number_text.h"
#include "preset_library.h"
#include "presets/color_preset.h"
#include "presets/preset_check.h"
#include "presets/preset_effects.h"
#include "presets/preset_file.h"
#include "presets/preset_reader.h"
#include "settings/ascii_text.h"
#include "settings/settings_access.h"
#include "settings/settings_reference.h"
#include "settings/settings_text.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

bool IsTexture(const char* name) {
  return std::string_view(name) != kNoTextureName;
}

class Composer {
 public:
  explicit Composer(const DataFolders& folders) : folders_(folders), session_(composed_.session) {
    InitSettingsToDefaults(composed_.settings, composed_.session);
  }

  ComposedSettings Run(std::span<const AgeStep> steps) {
    for (const AgeStep& step : steps) Apply(step);
    DeriveSwitches(composed_.settings);
    for (const AgeStep& step : steps) WarnOfIdleSwitch(step);
    return std::move(composed_);
  }

 private:
  void Apply(const AgeStep& step) {
    switch (step.kind) {
      case AgeStep::Kind::kPreset:
        ApplyPreset(step.value);
        break;
      case AgeStep::Kind::kSet:
        ApplySet(step.value);
        break;
      case AgeStep::Kind::kSurfaceColors:
        UseAsSurfaceColors(LoadColors("--surface-colors", step.value), colorName_,
                           composed_.settings, composed_.session);
        break;
      case AgeStep::Kind::kBackgroundColors:
        UseAsBackgroundColors(LoadColors("--background-colors", step.value), colorName_,
                              composed_.settings, composed_.session);
        break;
      case AgeStep::Kind::kSeed:
        seed_ = ParseNumber<std::int32_t>(step.value);
        ApplySeed();
        break;
    }
  }

  void ApplySeed() {
    if (!seed_) return;
    composed_.settings.WashRandomize1 = *seed_;
    composed_.settings.WashRandomize2 = *seed_;
  }

  void ApplyPreset(const std::string& given) {
    const fs::path path = FindPreset(given, "--preset", folders_, kSettingsKinds);
    std::string bytes;
    PresetLoad outcome = ReadPresetBytes(path, bytes);
    if (outcome == PresetLoad::kLoaded && !ReadPreset(bytes, composed_.settings, session_)) {
      outcome = PresetLoad::kNotAPreset;
    }
    if (outcome != PresetLoad::kLoaded) {
      FailInput(path.string(), DescribePresetLoad(outcome), "see tarnwick presets check");
    }
    for (const PresetFault& fault : CheckPreset(bytes).faults) {
      if (fault.kind != PresetFaultKind::kOutOfRange &&
          fault.kind != PresetFaultKind::kNotANumber) {
        continue;  // For `presets check`: nothing was set by it.
      }
      composed_.warnings.push_back(path.string() + ":" + std::to_string(fault.line) + ": " +
                                   fault.text);
    }
    ApplySeed();
  }

  ColorPreset LoadColors(const std::string& option, const std::string& given) {
    const fs::path path = FindPreset(given, option, folders_, kColorKinds);
    ColorPreset colors;
    const PresetLoad outcome = LoadColorPreset(path, colors);
    if (outcome != PresetLoad::kLoaded) {
      FailInput(path.string(), DescribePresetLoad(outcome), "give a preset of the folder Colors");
    }
    colorName_ = path.stem().string();
    return colors;
  }

  void ApplySet(const std::string& assignment) {
    const std::size_t equals = assignment.find('=');
    const std::string name = assignment.substr(0, equals);
    const std::string value = assignment.substr(equals + 1);
    const SettingField* field = FindSetting(name);
    if (field == nullptr || !UserMaySet(*field)) FailUnknownField("--set " + name, name);
    const SettingError error =
        SetSettingFromText(*field, value, composed_.settings, composed_.session);
    if (error != SettingError::kNone) {
      FailUse("--set " + std::string(field->name),
              "\"" + value + "\" " + DescribeSettingError(error),
              "give " + DescribeSettingValues(*field));
    }
    // The engine knows this name in one spelling only.
    if (field->type == SettingType::kText &&
        EqualIgnoringCase(SettingText(*field, composed_.settings, composed_.session),
                          kNoTextureName)) {
      StoreSettingText(*field, kNoTextureName, composed_.settings, composed_.session);
    }
    constexpr std::int32_t kPresentVersion = 2;
    ApplyPresetSideEffects(field->key, composed_.settings, kPresentVersion);
    if (!SettingIsInRange(*field, composed_.settings, composed_.session)) {
      composed_.warnings.push_back("--set " + std::string(field->name) + ": " + value +
                                   " is outside its values, " + DescribeSettingValues(*field) +
                                   " (it is taken as it stands)");
    }
  }

  // A switch turned on that the names leave off: the user expects an effect.
  void WarnOfIdleSwitch(const AgeStep& step) {
    if (step.kind != AgeStep::Kind::kSet) return;
    const SettingField* field = FindSetting(step.value.substr(0, step.value.find('=')));
    const EffectSettings& settings = composed_.settings;
    for (const auto& [name, on, texture] :
         {std::tuple("WashUse", settings.WashUse, "WashFileName1"),
          std::tuple("SurfaceUse", settings.SurfaceUse, "SurfaceFileName1"),
          std::tuple("BackgroundUse", settings.BackgroundUse, "BackgroundFileName")}) {
      if (std::string_view(field->name) != name || on != 0) continue;
      // It may have been switched off, which is what the user got.
      EffectSettings alone;
      SettingsSession ignored;
      const SettingError error =
          SetSettingFromText(*field, step.value.substr(step.value.find('=') + 1), alone, ignored);
      if (error != SettingError::kNone || SettingNumber(*field, alone, ignored) == 0) continue;
      composed_.warnings.push_back("--set " + std::string(name) +
                                   ": has no effect without a texture (set " + texture + ")");
    }
  }

  const DataFolders& folders_;
  ComposedSettings composed_;
  PresetSession session_;
  std::string colorName_;
  std::optional<std::int32_t> seed_;
};

}  // namespace

ComposedSettings ComposeSettings(std::span<const AgeStep> steps, const DataFolders& folders) {
  return Composer(folders).Run(steps);
}

std::vector<std::string> TexturesInUse(const EffectSettings& settings) {
  std::vector<std::string> names;
  const auto add = [&](const char* name) {
    if (IsTexture(name)) names.emplace_back(name);
  };
  add(settings.WashFileName1);
  if (settings.SecondWashExists != 0) add(settings.WashFileName2);
  add(settings.BackgroundFileName);
  add(settings.SurfaceFileName1);
  if (settings.SecondSurfaceExists != 0) add(settings.SurfaceFileName2);
  return names;
}

void SpellTexturesAsIn(const fs::path& folder, EffectSettings& settings) {
  const auto spell = [&](char(&name)[kTextureNameSize]) {
    if (!IsTexture(name)) return;
    if (const auto spelled = SpellingIn(folder, name)) StoreTextureName(name, *spelled);
  };
  spell(settings.WashFileName1);
  spell(settings.WashFileName2);
  spell(settings.BackgroundFileName);
  spell(settings.SurfaceFileName1);
  spell(settings.SurfaceFileName2);
}

void FailUnknownField(const std::string& what, const std::string& name) {
  const std::vector<std::string> near = NearSettingNames(name);
  FailUse(what, "no such field",
          near.empty() ? "see tarnwick settings list" : "did you mean " + EitherOf(near) + "?");
}

}  // namespace tarnwick
