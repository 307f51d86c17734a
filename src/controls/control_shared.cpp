#include "controls/control_shared.h"

#include <initializer_list>

namespace tarnwick {

ControlShared& SharedControls() {
  static ControlShared shared;
  return shared;
}

void MakeSharedControls(HINSTANCE instance) {
  ControlShared& shared = SharedControls();
  shared.instance = instance;
  shared.faceBrush = CreateSolidBrush(GetSysColor(COLOR_BTNFACE));
  shared.hoveredCell = CreateSolidBrush(RGB(146, 146, 146));
  shared.idleCell = CreateSolidBrush(RGB(84, 84, 84));
  shared.hand = LoadCursorA(nullptr, MAKEINTRESOURCEA(32649));  // IDC_HAND
}

void FreeSharedControls() {
  ControlShared& shared = SharedControls();
  for (HBRUSH* const brush : {&shared.faceBrush, &shared.hoveredCell, &shared.idleCell}) {
    if (*brush != nullptr) DeleteObject(*brush);
    *brush = nullptr;
  }
  FreeControlFonts(shared.fonts);
  shared.buttonBitmaps = {};
  shared.hotRotor = nullptr;
}

}  // namespace tarnwick
