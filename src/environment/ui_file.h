#pragma once
#include <cstdint>
#include <string>

#include "settings/effect_settings.h"

namespace tarnwick {

// The small text file beside the module that keeps the dialog's place.

inline constexpr char kUiFileName[] = "TarnwickStudio.ini";

// What the file holds besides the window's frame, which lives in the settings.
struct UiValues {
  std::int32_t resolutionOfSharing = 1024;  // nothing uses it; it is only kept
  std::int32_t useSound = 1;                // for the Auto button
  // Of a file that tells of newer versions; see news/news_address.h. Empty, as it is
  // where no user has set it: none is looked for, and the file has no line for it.
  std::string newsAddress;
};

// Reads what the file has of its keys; a missing file changes nothing. A file without
// an address takes one away that was there before. Odd, and kept: the window's top is written but
// never read back, since its key begins with a blank, which the reader skips.
void LoadUiFile(const std::string& path, EffectSettings& settings, UiValues& values);

// Writes it anew; does nothing if that is not possible.
void SaveUiFile(const std::string& path, const EffectSettings& settings, const UiValues& values);

}  // namespace tarnwick
