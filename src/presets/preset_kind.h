#pragma once
#include <optional>
#include <string_view>

namespace tarnwick {

// Which share of the settings a preset holds. The reader does not care: a file
// changes what its lines name, wherever it lies.
enum class PresetKind : int {
  kBasic = 0,  // made with the program; of the form of kUser
  kWash = 1,
  kSurface = 2,
  kBackground = 3,
  kUser = 4,  // everything
  kSurfaceColor = 5,
  kBackgroundColor = 6,
  kBackPalette = 7,  // backgrounds with thumbnails; never written
};

inline constexpr PresetKind kPresetKinds[] = {
    PresetKind::kBasic,           PresetKind::kWash,       PresetKind::kSurface,
    PresetKind::kBackground,      PresetKind::kUser,       PresetKind::kSurfaceColor,
    PresetKind::kBackgroundColor, PresetKind::kBackPalette};

// Without the dot.
inline constexpr std::string_view kPresetExtension = "twkpst";

// The kind's folder under the presets' root, without separators. Both colour
// kinds share one.
[[nodiscard]] std::string_view PresetFolder(PresetKind kind);

// A word for command lines: "user", "surface-color". None has blanks.
[[nodiscard]] std::string_view PresetKindWord(PresetKind kind);
[[nodiscard]] std::optional<PresetKind> PresetKindFromWord(std::string_view word);

// False for kBackPalette.
[[nodiscard]] bool IsWritten(PresetKind kind);

// True for the two kinds that hold three colours and nothing else.
[[nodiscard]] bool IsColorKind(PresetKind kind);

}  // namespace tarnwick
