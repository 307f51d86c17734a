#pragma once

namespace tarnwick {

// The integer colour model of the hue, saturation and lightness adjustments:
// all three on a scale of 0..240, divisions truncating. It is the hexcone of
// double lightness: Foley, van Dam et al., "Computer Graphics: Principles and
// Practice", section 13.3.5, in whole numbers.
inline constexpr int kHlsMax = 240;

struct HlsColor {
  int hue;
  int lightness;
  int saturation;
};

struct RgbColor {
  int red;
  int green;
  int blue;
};

// Channels are taken as bytes. Grey has hue 160 and saturation 0.
[[nodiscard]] HlsColor RgbToHls(int red, int green, int blue);

// Channels of 0..255 for a lightness and saturation of 0..240; other values are
// computed on and may leave that range. The hue is taken modulo 240, except
// that 240 itself is not wrapped.
[[nodiscard]] RgbColor HlsToRgb(int hue, int lightness, int saturation);

}  // namespace tarnwick
