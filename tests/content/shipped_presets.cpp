#include "shipped_presets.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "presets/color_preset.h"
#include "presets/preset_file.h"
#include "presets/preset_reader.h"

namespace tarnwick::content {

namespace fs = std::filesystem;

std::vector<Shipped> ShippedPresets() {
  std::set<fs::path> paths;
  for (const auto& entry : fs::recursive_directory_iterator(TARNWICK_PRESETS)) {
    if (entry.is_regular_file()) paths.insert(entry.path());
  }
  std::vector<Shipped> presets;
  for (const fs::path& path : paths) {
    Shipped preset{
        fs::relative(path, TARNWICK_PRESETS).begin()->string(), path.stem().string(), {}};
    EXPECT_EQ(path.extension(), "." + std::string(kPresetExtension)) << path;
    EXPECT_EQ(ReadPresetBytes(path, preset.bytes), PresetLoad::kLoaded) << path;
    presets.push_back(std::move(preset));
  }
  return presets;
}

Look DefaultLook() {
  Look look;
  ResetAllSettings(look.settings, look.session);
  return look;
}

Look LookOf(const Shipped& preset) {
  Look look = DefaultLook();
  if (preset.folder == "Colors") {
    ColorPreset colors;
    EXPECT_EQ(ReadColorPreset(preset.bytes, colors), PresetLoad::kLoaded);
    UseAsSurfaceColors(colors, preset.name, look.settings, look.session);
  } else {
    PresetSession session(look.session);
    EXPECT_TRUE(ReadPreset(preset.bytes, look.settings, session));
  }
  return look;
}

}  // namespace tarnwick::content
