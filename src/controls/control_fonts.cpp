#include "controls/control_fonts.h"

#include <initializer_list>

#include "controls/models/dpi_scale.h"

namespace tarnwick {
namespace {

HFONT MakeFont(int height, int weight, bool isUnderlined = false) {
  return CreateFontA(height, 0, 0, 0, weight, FALSE, isUnderlined ? TRUE : FALSE, FALSE,
                     DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, PROOF_QUALITY,
                     DEFAULT_PITCH | FF_DONTCARE, "Arial");
}

}  // namespace

ControlFonts MakeControlFonts(int dpi) {
  // Out of the platform's range, and kept: it is as bold as it gets.
  constexpr int kHoverWeight = 2000;
  ControlFonts fonts;
  fonts.FontSmallBold = MakeFont(ScaledHeight(13, dpi), FW_BOLD);
  fonts.FontMediumBold = MakeFont(ScaledHeight(14, dpi), FW_BOLD);
  fonts.FontLinkBold = MakeFont(ScaledHeight(15, dpi), FW_BOLD);
  fonts.FontLinkUnderlined = MakeFont(TwiceScaledHeight(15, dpi), FW_NORMAL, true);
  fonts.FontThumbCaption = MakeFont(ScaledHeight(12, dpi), FW_NORMAL);
  fonts.FontCaptionActive = MakeFont(ScaledHeight(14, dpi), FW_BLACK);
  fonts.FontCaptionHover = MakeFont(ScaledHeight(14, dpi), kHoverWeight);
  fonts.FontList = MakeFont(LinearHeight(13, dpi), FW_NORMAL);
  return fonts;
}

void FreeControlFonts(ControlFonts& fonts) {
  for (HFONT* const font : {&fonts.FontSmallBold, &fonts.FontMediumBold, &fonts.FontLinkBold,
                            &fonts.FontLinkUnderlined, &fonts.FontThumbCaption,
                            &fonts.FontCaptionActive, &fonts.FontCaptionHover, &fonts.FontList}) {
    if (*font != nullptr) DeleteObject(*font);
    *font = nullptr;
  }
}

}  // namespace tarnwick
