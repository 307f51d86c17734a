#pragma once

namespace tarnwick {

// Which layers stay as they are when the others are made anew from the settings.
struct KeptLayers {
  bool washes = false;
  bool surfaces = false;
  bool background = false;
  bool operator==(const KeptLayers&) const = default;
};

}  // namespace tarnwick
