#pragma once
#include <windows.h>

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
  Rotor* hotRotor = nullptr;  // the one with the pointer on it
};

[[nodiscard]] ControlShared& SharedControls();

// Brushes and cursor; before the classes are registered. Fonts come with the dialog.
void MakeSharedControls(HINSTANCE instance);
void FreeSharedControls();

}  // namespace tarnwick
