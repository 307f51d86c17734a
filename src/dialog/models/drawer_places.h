#pragma once
#include "dialog/models/dialog_layout.h"

namespace tarnwick {

// Where a drawer's own controls lie. Pixels of the drawer, the same on every screen.

inline constexpr int kCellWidth = 122;
inline constexpr int kCellHeight = 110;

// Rows of cells between the filter boxes and the buttons; none fits below 260.
[[nodiscard]] constexpr int DrawerRows(int height) {
  return height > 150 ? (height - 150) / kCellHeight : 0;
}

[[nodiscard]] constexpr Place DrawerTitlePlace(int width) {
  return {(width - 199) / 2, 17, 199, 20};
}
[[nodiscard]] constexpr Place DrawerCellsPlace(int width, int rows) {
  return {(width - 366) / 2, 85, 366, rows * kCellHeight};
}
[[nodiscard]] constexpr Place DrawerCellPlace(int cell) {
  return {cell % 3 * kCellWidth, cell / 3 * kCellHeight, kCellWidth, kCellHeight};
}
[[nodiscard]] constexpr Place DrawerPageLeftPlace() {
  return {20, 16, 12, 25};
}
[[nodiscard]] constexpr Place DrawerPageRightPlace(int width) {
  return {width - 32, 16, 12, 25};
}

// The three buttons at the bottom.
struct DrawerButtons {
  Place cancel, live, select;
};
[[nodiscard]] constexpr DrawerButtons DrawerButtonPlaces(int width, int height) {
  const int left = (width - 302) / 2;
  const int top = height - 57;
  return {{left, top, 116, 38}, {left + 131, top, 40, 38}, {left + 186, top, 116, 38}};
}

}  // namespace tarnwick
