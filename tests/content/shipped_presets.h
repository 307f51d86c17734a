#pragma once
#include <string>
#include <vector>

#include "settings/effect_settings.h"

namespace tarnwick::content {

// The presets that come with the program, as its sources hold them.

struct Shipped {
  std::string folder;  // "Basic", "Wash" ...
  std::string name;    // without extension
  std::string bytes;
};

// All of them, in the order of their paths. Files that are none fail the test.
[[nodiscard]] std::vector<Shipped> ShippedPresets();

struct Look {
  EffectSettings settings;
  SettingsSession session;
};

[[nodiscard]] Look DefaultLook();

// What a user gets who applies the preset to the default settings; colours go to
// the surface.
[[nodiscard]] Look LookOf(const Shipped& preset);

}  // namespace tarnwick::content
