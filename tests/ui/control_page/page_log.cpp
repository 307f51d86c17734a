#include "ui/control_page/page_log.h"

#include <fstream>

#include "controls/color_swatch.h"
#include "controls/control_button.h"
#include "controls/control_classes.h"
#include "controls/mac_slider.h"
#include "controls/rotor_control.h"
#include "environment/format_text.h"

namespace tarnwick::testui {
namespace {

std::string StateOf(HWND control) {
  if (const auto* slider = GetControlRecord<TMacSlider>(control, kSliderClass)) {
    return FormatText(" %.2f", static_cast<double>(slider->value));
  }
  if (const auto* rotor = GetControlRecord<Rotor>(control, kRotorClass)) {
    const BallOffset offset = GetRotorOffset(*rotor);
    return FormatText(" %.2f %.2f %.2f %.2f", static_cast<double>(rotor->angles.azimuth),
                      static_cast<double>(rotor->angles.altitude), static_cast<double>(offset.x),
                      static_cast<double>(offset.y));
  }
  if (const auto* swatch = GetControlRecord<ColorSwatch>(control, kSwatchClass)) {
    return FormatText(" %d %d %d", GetRValue(swatch->color), GetGValue(swatch->color),
                      GetBValue(swatch->color));
  }
  if (const auto* button = GetControlRecord<ControlButton>(control, kButtonClass)) {
    return FormatText(" %d", button->latched);
  }
  return "";
}

}  // namespace

void PageLog::Command(HWND page, WPARAM wParam, LPARAM lParam) const {
  const int id = LOWORD(wParam);
  // A window's handle is no number to compare.
  const bool isOwn = HIWORD(wParam) == 0 && lParam <= 1;
  Line(FormatText("command %d %d %d", id, HIWORD(wParam), isOwn ? static_cast<int>(lParam) : -1) +
       StateOf(GetDlgItem(page, id)));
}

void PageLog::Line(const std::string& line) const {
  std::ofstream(path_, std::ios::app | std::ios::binary) << line << '\n';
}

}  // namespace tarnwick::testui
