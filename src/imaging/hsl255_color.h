#pragma once

namespace tarnwick {

// The 64-bit colour model of the "Colorize" surface: hue, saturation and
// lightness on a scale of 0..255. Not interchangeable with hls_color.h: ranges
// and rounding differ.

// In place: red, green, blue in (0..255); hue, saturation, lightness out, each
// rounded. Grey has hue and saturation 0.
void RgbToHsl255(int& c0, int& c1, int& c2);

// In place: hue, saturation, lightness in; red, green, blue out.
void HslToRgb255(int& c0, int& c1, int& c2);

}  // namespace tarnwick
