#pragma once
#include <windows.h>

#include <array>

#include "controls/control_fonts.h"

namespace tarnwick {

struct Rotor;

// What all controls of a dialog share while it is there. One dialog at a time, on
// its thread.
struct ControlShared {
  HINSTANCE instance = nullptr;  // of the module: classes and skins
  HBRUSH faceBrush = nullptr;    // the colour of dialogs
  HBRUSH hoveredCell = nullptr;  // behind a cell of a drawer with the pointer on it
  HBRUSH idleCell = nullptr;     // behind the others
  HCURSOR hand = nullptr;        // over links
  ControlFonts fonts;
  // Bitmaps that several buttons show: ids -1, -2 and -3 of SetButtonBitmaps. Whoever
  // sets them owns them, and keeps them as long as the buttons.
  std::array<HBITMAP, 3> buttonBitmaps{};
  Rotor* hotRotor = nullptr;  // the one with the pointer on it
};

[[nodiscard]] ControlShared& SharedControls();

// Brushes and cursor; before controls are made. Fonts come with the dialog.
// FreeSharedControls frees brushes and fonts, once all controls are gone.
void MakeSharedControls(HINSTANCE instance);
void FreeSharedControls();

}  // namespace tarnwick
