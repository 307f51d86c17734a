#pragma once

namespace tarnwick {

// What the manual is asked for by.
inline constexpr int kHelpManual = 0;
inline constexpr int kHelpFirstTab = 777;  // plus the index of a tab, 0 to 3
inline constexpr int kHelpPicker = 877;

// The page's name in the help folder; the first page of the manual for any code
// that has none of its own.
[[nodiscard]] const char* HelpPageOf(int code);

// What the looks do to a picture: shown from the header, not asked for by a code.
inline constexpr char kExamplesPage[] = "presets.html";

}  // namespace tarnwick
