#pragma once

namespace tarnwick {

// Ids of the main dialog's controls and commands. The dialog's own template names
// them by number: src/resources/dialogs.rc.

inline constexpr int kZoomIn = 1000;
inline constexpr int kZoomOut = 1001;
inline constexpr int kPane = 1002;
inline constexpr int kPercentage = 1003;
inline constexpr int kProgressBar = 1004;
// Settings have changed: the one door by which pages, pickers and drawers ask for a
// redraw. Both mean the same.
inline constexpr int kSettingsChanged = 1008;
inline constexpr int kSettingsChangedToo = 1009;
inline constexpr int kPaneFrame = 1010;
inline constexpr int kManual = 1126;
inline constexpr int kViewAll = 1127;
inline constexpr int kRightHeader = 1128;
inline constexpr int kAuto = 1129;
inline constexpr int kAbout = 1130;
inline constexpr int kLeftHeader = 1161;
inline constexpr int kZoomToFit = 9001;
inline constexpr int kZoomToFull = 9002;
inline constexpr int kTabControl = 999;
// To a page: all pages show the settings anew.
inline constexpr int kShowAllPages = 9777;

// What an edit field's parent hears of Escape in it, with the field's id.
inline constexpr int kEditCancelled = 27;

}  // namespace tarnwick
