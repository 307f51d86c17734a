#pragma once
#include <windows.h>

namespace tarnwick {

// The dialog makes one set when it starts; the controls borrow them.
struct ControlFonts {
  HFONT FontSmallBold = nullptr;       // combo boxes, stock buttons, edit fields
  HFONT FontMediumBold = nullptr;      // the tab control; second caption font
  HFONT FontLinkBold = nullptr;        // plain link that is disabled; separators
  HFONT FontLinkUnderlined = nullptr;  // plain link
  HFONT FontThumbCaption = nullptr;    // names of thumbnails
  HFONT FontCaptionActive = nullptr;   // caption of the selected tab or page
  HFONT FontCaptionHover = nullptr;    // caption of a tracking label
  HFONT FontList = nullptr;            // list boxes
};

// For a screen of `dpi` vertical pixels an inch.
[[nodiscard]] ControlFonts MakeControlFonts(int dpi);
void FreeControlFonts(ControlFonts& fonts);

}  // namespace tarnwick
