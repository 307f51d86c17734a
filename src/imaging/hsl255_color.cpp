#include "imaging/hsl255_color.h"

#include <algorithm>

#include "base/truncate.h"

namespace tarnwick {
namespace {

int HueToChannel255(double m1, double m2, double hue) {
  if (hue > 255) {
    hue -= 255;
  } else if (hue < 0) {
    hue += 255;
  }
  if (hue < 42.5) return TruncateToInt(((m2 - m1) * (hue / 42.5) + m1) * 255 + 0.5);
  if (hue < 127.5) return TruncateToInt(m2 * 255 + 0.5);
  if (hue < 170) return TruncateToInt(((m2 - m1) * ((170 - hue) / 42.5) + m1) * 255 + 0.5);
  return TruncateToInt(m1 * 255 + 0.5);
}

}  // namespace

void RgbToHsl255(int& c0, int& c1, int& c2) {
  const int r = c0;
  const int g = c1;
  const int b = c2;
  // Differences in 64 bits: a shade may lie far outside 0..255.
  const double high = std::max({r, g, b});
  const double low = std::min({r, g, b});
  const double sum = high + low;
  const double lightness = sum * 0.5;
  double hue = 0;
  double saturation = 0;
  if (high != low) {
    const double d = high - low;
    saturation = lightness < 128 ? 255 * d / sum : 255 * d / (511 - low - high);
    if (r == high) {
      hue = (static_cast<double>(g) - b) / d;
    } else if (g != high) {
      hue = (static_cast<double>(r) - g) / d + 4;
    } else {
      hue = (static_cast<double>(b) - r) / d + 2;
    }
    hue *= 42.5;
    if (hue < 0) {
      hue += 255;
    } else if (hue > 255) {
      hue -= 255;
    }
  }
  c0 = TruncateToInt(hue + 0.5);
  c1 = TruncateToInt(saturation + 0.5);
  c2 = TruncateToInt(lightness + 0.5);
}

void HslToRgb255(int& c0, int& c1, int& c2) {
  const double hue = c0;
  const double saturation = c1;
  const double lightness = c2;
  if (c1 == 0) {
    c0 = c1 = c2;
    return;
  }
  const double m2 = lightness < 128 ? (saturation + 255) * lightness / 65025
                                    : (lightness + saturation - lightness * saturation / 255) / 255;
  const double m1 = lightness / 127.5 - m2;
  c0 = HueToChannel255(m1, m2, hue + 85);
  c1 = HueToChannel255(m1, m2, hue);
  c2 = HueToChannel255(m1, m2, hue - 85);
}

}  // namespace tarnwick
