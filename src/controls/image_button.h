#pragma once
#include <windows.h>

#include <cstdint>

namespace tarnwick {

// The skin of a stock button. The bitmaps are the dialog's; the record has to live
// as long as the button.
struct ImageButtonState {
  std::uint32_t inside = 0;
  HBITMAP hotBitmap = nullptr;
  HBITMAP normalBitmap = nullptr;
  HBITMAP disabledBitmap = nullptr;
  HBITMAP checkedBitmap = nullptr;
  HBITMAP checkedHotBitmap = nullptr;
  HBITMAP checkedDisabledBitmap = nullptr;
  WNDPROC previousProc = nullptr;
};

// Shows the bitmaps on a button of the system's and follows the pointer: hot while
// it is inside, disabled and checked variants where there are such.
void SkinStockButton(ImageButtonState& state, HWND button, HBITMAP normalBitmap, HBITMAP hotBitmap,
                     HBITMAP disabledBitmap, HBITMAP checkedBitmap, HBITMAP checkedHotBitmap,
                     HBITMAP checkedDisabledBitmap);

// The bitmap that stands for a button with these properties.
[[nodiscard]] HBITMAP ImageOf(const ImageButtonState& state, bool isEnabled, bool isChecked,
                              bool isHot);

}  // namespace tarnwick
