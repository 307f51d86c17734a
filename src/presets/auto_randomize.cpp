#include "presets/auto_randomize.h"

#include "base/native_path.h"
#include "presets/auto_wash.h"
#include "presets/color_list.h"
#include "presets/preset_file.h"
#include "presets/preset_kind.h"
#include "settings/ascii_text.h"
#include "settings/settings_access.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr int kPresetPercent = 33;  // both to take one and to leave it at that
constexpr int kColorPercent = 20;
constexpr int kFirstWithoutWash = 951;  // of 1000
constexpr int kLastWithOneWash = 850;   // of 1000
constexpr std::uint32_t kDrawerSeed = 12345678;

// As a file of the folder is spelled that differs in capitals only: lists show names
// without their extension, in whatever capitals that is.
std::string SpelledIn(const fs::path& folder, const std::string& name) {
  std::error_code error;
  if (fs::exists(folder / PathOfName(name), error)) return name;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    std::string found = NameOfPath(entry->path().filename());
    if (EqualIgnoringCase(found, name)) return found;
  }
  return name;
}

class Thrower {
 public:
  Thrower(const AutoLibrary& library, EffectSettings& settings, PresetSession& session)
      : library_(library), settings_(settings), session_(session), dice_(library.seconds()) {}

  AutoThrow Run() {
    (void)dice_.Throw();  // The first after a seed of seconds hardly changes.
    ResetAllSettings(settings_, session_.settingsSession);
    if (!ThrowWholeLook()) {
      (void)ReadFrom(PresetKind::kBackground);
      (void)ReadFrom(PresetKind::kSurface);
      ThrowWashes();
    }
    ThrowSurfaceColors();
    ThrowBackgroundColors();
    return std::move(thrown_);
  }

 private:
  // True when a Basic preset is the look.
  bool ThrowWholeLook() {
    if (dice_.Below(100) >= kPresetPercent) return false;
    return ReadFrom(PresetKind::kBasic) && dice_.Below(100) < kPresetPercent;
  }

  bool ReadFrom(PresetKind kind) {
    // Without a folder of its own it would read where the program stands.
    if (library_.presetRoot.empty()) return false;
    const auto path =
        PickRandomPreset(library_.presetRoot / PresetFolder(kind), library_.order, dice_);
    if (!path || LoadPresetFile(*path, settings_, session_) != PresetLoad::kLoaded) return false;
    thrown_.presets.push_back(*path);
    return true;
  }

  void ThrowWashes() {
    const int w = dice_.Below(1000);
    if (w >= kFirstWithoutWash) {
      StoreTextureName(settings_.WashFileName1, kNoTextureName);
      return;
    }
    ThrowTexture(settings_.WashFileName1);
    ThrowWash(w, dice_, FirstWash(settings_));
    const int v = dice_.Below(1000);
    if (v <= kLastWithOneWash) return;
    settings_.SecondWashExists = 1;
    ThrowTexture(settings_.WashFileName2);
    ThrowWash(v, dice_, SecondWash(settings_));
  }

  void ThrowTexture(char (&name)[kTextureNameSize]) {
    const int index = RandomRecord(library_.textures.size(), library_.seconds(), dice_);
    StoreTextureName(
        name, index < 0 ? kNoTextureName : library_.textures[static_cast<std::size_t>(index)]);
  }

  // A colour preset's name, if chance wants colours for a group that is on.
  std::string ThrowColorName(std::uint8_t groupIsOn) {
    // Thrown in any case: what follows must not hang on the group.
    const bool wanted = dice_.Below(100) < kColorPercent;
    if (!wanted || library_.colors.empty() || groupIsOn == 0) return {};
    const int index = RandomRecord(library_.colors.size(), library_.seconds(), dice_);
    return library_.colors[static_cast<std::size_t>(index)];
  }

  // Its tones come to the session. A file that cannot be read leaves those of
  // the one before it.
  void ReadColors(const std::string& name) {
    const fs::path folder = library_.presetRoot / PresetFolder(PresetKind::kSurfaceColor);
    const std::string file = name + "." + std::string(kPresetExtension);
    (void)LoadPresetFile(folder / PathOfName(SpelledIn(folder, file)), settings_, session_);
  }

  void ThrowSurfaceColors() {
    const std::string name = ThrowColorName(settings_.SurfaceUse);
    if (name.empty()) return;
    thrown_.surfaceColors = name;
    if (name == kResetColorsName) {
      session_.settingsSession.SurfaceColorCategory = kCustomCategory;
      ResetSurfaceColors(settings_);
      return;
    }
    ReadColors(name);
    session_.settingsSession.SurfaceColorCategory = name.substr(0, kMaxCategoryName);
    settings_.SurfaceHighlightColor = session_.PresetHighlightColor;
    settings_.SurfaceMidtoneColor = session_.PresetMidtoneColor;
    settings_.SurfaceShadowColor = session_.PresetShadowColor;
  }

  void ThrowBackgroundColors() {
    const std::string name = ThrowColorName(settings_.BackgroundUse);
    if (name.empty()) return;
    thrown_.backgroundColors = name;
    if (name == kResetColorsName) {
      // Resets the colours of the layer, which is made anew from the record.
      session_.settingsSession.BackgroundColorCategory = kCustomCategory;
      return;
    }
    ReadColors(name);
    session_.settingsSession.BackgroundColorCategory = name.substr(0, kMaxCategoryName);
    settings_.BackgroundHighlightColor = session_.PresetHighlightColor;
    settings_.BackgroundMidtoneColor = session_.PresetMidtoneColor;
    settings_.BackgroundShadowColor = session_.PresetShadowColor;
  }

  const AutoLibrary& library_;
  EffectSettings& settings_;
  PresetSession& session_;
  AutoDice dice_;
  AutoThrow thrown_;
};

}  // namespace

AutoThrow AutoRandomize(const AutoLibrary& library, EffectSettings& settings,
                        PresetSession& session) {
  return Thrower(library, settings, session).Run();
}

int RandomRecord(std::size_t count, std::uint32_t seconds, AutoDice& dice) {
  dice.Seed(seconds * kDrawerSeed);
  return count == 0 ? -1 : dice.Below(static_cast<int>(count));
}

}  // namespace tarnwick
