#include "imaging/hls_color.h"

#include <algorithm>

namespace tarnwick {
namespace {

int HueToChannel(int m1, int m2, int hue) {
  if (hue < 0) hue += kHlsMax - (hue / kHlsMax) * kHlsMax;
  if (hue > kHlsMax) hue = (hue - kHlsMax) % kHlsMax;
  if (hue < 40) return m1 + ((m2 - m1) * hue + 20) / 40;
  if (hue < 120) return m2;
  if (hue < 160) return m1 + ((m2 - m1) * (160 - hue) + 20) / 40;
  return m1;
}

}  // namespace

HlsColor RgbToHls(int red, int green, int blue) {
  const int r = red & 0xFF;
  const int g = green & 0xFF;
  const int b = blue & 0xFF;
  const int high = std::max({r, g, b});
  const int low = std::min({r, g, b});
  const int sum = high + low;
  const int lightness = (sum * kHlsMax + 255) / 510;
  if (high == low) return {160, lightness, 0};

  const int d = high - low;
  const int saturation = lightness <= 120 ? (d * kHlsMax + sum / 2) / sum
                                          : (d * kHlsMax + (510 - sum) / 2) / (510 - sum);
  const int dr = ((high - r) * 40 + d / 2) / d;
  const int dg = ((high - g) * 40 + d / 2) / d;
  const int db = ((high - b) * 40 + d / 2) / d;
  int hue = 0;
  if (r == high) {
    hue = db - dg;
  } else if (g == high) {
    hue = dr - db + 80;
  } else {
    hue = dg - dr + 160;
  }
  if (hue < 0) hue += kHlsMax;
  if (hue > kHlsMax) hue -= kHlsMax;
  return {hue, lightness, saturation};
}

RgbColor HlsToRgb(int hue, int lightness, int saturation) {
  if (saturation == 0) {
    const int gray = lightness * 255 / kHlsMax;
    return {gray, gray, gray};
  }
  const int m2 = lightness <= 120
                     ? ((saturation + kHlsMax) * lightness + 120) / kHlsMax
                     : lightness + saturation - (lightness * saturation + 120) / kHlsMax;
  const int m1 = 2 * lightness - m2;
  return {(HueToChannel(m1, m2, hue + 80) * 255 + 120) / kHlsMax,
          (HueToChannel(m1, m2, hue) * 255 + 120) / kHlsMax,
          (HueToChannel(m1, m2, hue - 80) * 255 + 120) / kHlsMax};
}

}  // namespace tarnwick
