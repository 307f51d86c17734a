#pragma once

namespace tarnwick::testhost {

// What a program has to itself of the system's windows and graphics. Nothing where
// there are none.

// As picture editors are: it is told the screen's real resolution.
void BecomeScreenAware();

struct GuiRoom {
  int graphics = 0;     // how many more pens can be made
  int windows = 0;      // how many more menus, which share their room with windows
  long long bytes = 0;  // memory of its own
};

// Found out by making them until there is no room, for some systems do not count. Takes
// a moment.
[[nodiscard]] GuiRoom MeasureGuiRoom();

}  // namespace tarnwick::testhost
