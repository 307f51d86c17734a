#include "presets/preset_kind.h"

#include "settings/ascii_text.h"

namespace tarnwick {

std::string_view PresetFolder(PresetKind kind) {
  switch (kind) {
    case PresetKind::kWash:
      return "Wash";
    case PresetKind::kSurface:
      return "Surface";
    case PresetKind::kBackground:
      return "Background";
    case PresetKind::kUser:
      return "User";
    case PresetKind::kSurfaceColor:
    case PresetKind::kBackgroundColor:
      return "Colors";
    case PresetKind::kBackPalette:
      return "BackPalette";
    case PresetKind::kBasic:
      break;
  }
  return "Basic";
}

std::string_view PresetKindWord(PresetKind kind) {
  switch (kind) {
    case PresetKind::kWash:
      return "wash";
    case PresetKind::kSurface:
      return "surface";
    case PresetKind::kBackground:
      return "background";
    case PresetKind::kUser:
      return "user";
    case PresetKind::kSurfaceColor:
      return "surface-color";
    case PresetKind::kBackgroundColor:
      return "background-color";
    case PresetKind::kBackPalette:
      return "back-palette";
    case PresetKind::kBasic:
      break;
  }
  return "basic";
}

std::optional<PresetKind> PresetKindFromWord(std::string_view word) {
  for (const PresetKind kind : kPresetKinds) {
    if (EqualIgnoringCase(word, PresetKindWord(kind))) return kind;
  }
  return std::nullopt;
}

bool IsWritten(PresetKind kind) {
  return kind != PresetKind::kBackPalette;
}

bool IsColorKind(PresetKind kind) {
  return kind == PresetKind::kSurfaceColor || kind == PresetKind::kBackgroundColor;
}

}  // namespace tarnwick
