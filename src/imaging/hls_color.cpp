#include "imaging/hls_color.h"

#include <algorithm>

#include "base/truncate.h"

namespace tarnwick {
namespace {

// m1 + (m2 - m1) * share / 40, rounded.
int BetweenLevels(int m1, int m2, int share) {
  const int scaled = WrappingMultiply(WrappingSubtract(m2, m1), share);
  return WrappingAdd(m1, WrappingAdd(scaled, 20) / 40);
}

int HueToChannel(int m1, int m2, int hue) {
  if (hue < 0) hue = WrappingAdd(hue, WrappingSubtract(kHlsMax, hue / kHlsMax * kHlsMax));
  if (hue > kHlsMax) hue = (hue - kHlsMax) % kHlsMax;
  if (hue < 40) return BetweenLevels(m1, m2, hue);
  if (hue < 120) return m2;
  if (hue < 160) return BetweenLevels(m1, m2, 160 - hue);
  return m1;
}

int ChannelByte(int m1, int m2, int hue) {
  return WrappingAdd(WrappingMultiply(HueToChannel(m1, m2, hue), 255), 120) / kHlsMax;
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
    const int gray = WrappingMultiply(lightness, 255) / kHlsMax;
    return {gray, gray, gray};
  }
  int m2 = 0;
  if (lightness <= 120) {
    const int product = WrappingMultiply(WrappingAdd(saturation, kHlsMax), lightness);
    m2 = WrappingAdd(product, 120) / kHlsMax;
  } else {
    const int product = WrappingMultiply(lightness, saturation);
    m2 = WrappingSubtract(WrappingAdd(lightness, saturation), WrappingAdd(product, 120) / kHlsMax);
  }
  const int m1 = WrappingSubtract(WrappingMultiply(2, lightness), m2);
  return {ChannelByte(m1, m2, WrappingAdd(hue, 80)), ChannelByte(m1, m2, hue),
          ChannelByte(m1, m2, WrappingSubtract(hue, 80))};
}

}  // namespace tarnwick
