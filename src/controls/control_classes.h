#pragma once
#include <windows.h>

#include "controls/control_record.h"

namespace tarnwick {

// Window classes of our own, by the names that dialog templates use.
inline constexpr char kFilmstripClass[] = "DexTWK2Class";
inline constexpr char kImageClass[] = "Control CPP";
inline constexpr char kButtonClass[] = "Control Button CPP";
inline constexpr char kLabelClass[] = "Contaner CPP";
inline constexpr char kRotorClass[] = "Rotor CPP";
inline constexpr char kSliderClass[] = "Mac Slider CPP";
inline constexpr char kPreviewClass[] = "Preview Contaner CPP";
inline constexpr char kSwatchClass[] = "Contaner Color CPP";
inline constexpr char kLinkClass[] = "ContainerLinkC";
inline constexpr char kDrawerClass[] = "DexDrawerClass";
// Not one of those below: there as long as the full-size picker is.
inline constexpr char kPickerClass[] = "Picker Class";

// Registers all classes for the module, before a dialog that names them is made,
// and takes them away after it. False when one of them cannot be registered; the
// others are there then.
[[nodiscard]] bool RegisterControlClasses(HINSTANCE instance);
void UnregisterControlClasses(HINSTANCE instance);

// The procedure of the preview pane, which the dialog brings. Without one a pane does
// nothing.
void SetPreviewProc(WNDPROC procedure);

// The record of a control, or null if the window is not of that class or has none.
// Class names are compared exactly.
[[nodiscard]] void* FindControlRecord(HWND window, const char* className);
template <typename Record>
[[nodiscard]] Record* GetControlRecord(HWND window, const char* className) {
  return static_cast<Record*>(FindControlRecord(window, className));
}

}  // namespace tarnwick
