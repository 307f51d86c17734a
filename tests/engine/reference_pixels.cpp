#include "engine/reference_pixels.h"

#include <algorithm>

#include "imaging/color_blend.h"
#include "imaging/hls_color.h"

namespace tarnwick::testing {
namespace {

std::uint8_t Byte(float v) {
  return static_cast<std::uint8_t>(static_cast<int>(v));
}

float Float(int v) {
  return static_cast<float>(v);
}

}  // namespace

float SaveThroughByDefinition(std::uint8_t* pixel, const std::uint8_t* save, float v) {
  const float f = v / 255;
  for (int i = 0; i < 3; ++i) {
    pixel[i] =
        v == 0 ? save[i] : Byte(std::min(Float(pixel[i]) * f + Float(save[i]) * (1 - f), 255.0F));
  }
  return std::max(v, Float(save[3]));
}

void WashByDefinition(std::uint8_t* pixel, int type, std::uint32_t stain, float v) {
  if (type == 0) {
    pixel[3] = Byte(std::min(Float(pixel[3]), v));
    return;
  }
  const float f = v / 255;
  const int c[3] = {static_cast<int>(stain & 255), static_cast<int>(stain >> 8 & 255),
                    static_cast<int>(stain >> 16 & 255)};
  float boosted[3] = {Float(pixel[0]), Float(pixel[1]), Float(pixel[2])};
  BoostMix(Float(c[0]), Float(c[1]), Float(c[2]), boosted[0], boosted[1], boosted[2]);
  for (int i = 0; i < 3; ++i) {
    const int d = pixel[i];
    const int effect = type == 2   ? 255 - ((255 - d) * (255 - c[i]) >> 8)
                       : type == 3 ? static_cast<int>(boosted[i])
                                   : d * c[i] / 255;
    pixel[i] = Byte(std::min(Float(effect) * (1 - f) + Float(d) * f, 255.0F));
  }
}

void ToneByDefinition(const EffectSettings& s, float t, float low, float high,
                      std::uint8_t* pixel) {
  const bool dark = t <= 0.65F;
  const float w = dark ? (0.65F - t) * 1.5384616F : (t - 0.65F) * 2.857143F;
  const std::uint32_t outer = dark ? s.BackgroundShadowColor : s.BackgroundHighlightColor;
  int c[3];
  for (int i = 0; i < 3; ++i) {
    c[i] = static_cast<int>(Float(outer >> 8 * i & 255) * w +
                            Float(s.BackgroundMidtoneColor >> 8 * i & 255) * (1 - w));
  }
  const float hue = Float(s.BackgroundHue) * 1.275F;
  const float saturation = Float(s.BackgroundMidtone) / 100;
  const bool enhanced = (s.BackgroundEnhancedMode & 255) != 0;
  if (hue != 0 || saturation != 1 || enhanced) {
    HlsColor k = RgbToHls(c[0], c[1], c[2]);
    k.hue = static_cast<int>(Float(k.hue) + hue);
    k.saturation = static_cast<int>(Float(k.saturation) * saturation);
    if (enhanced && t < low) {
      const float f = std::max(1 - (low - t) * 4, 0.0F);
      k.saturation = static_cast<int>(Float(k.saturation) * f);
      k.lightness = static_cast<int>(Float(k.lightness) * f);
    } else if (enhanced && t > high) {
      const float f = (t - high) * 5 + 1;
      k.saturation = std::min(static_cast<int>(Float(k.saturation) * f), 240);
      k.lightness = std::min(static_cast<int>(Float(k.lightness) * f), 240);
    }
    const RgbColor rgb = HlsToRgb(k.hue, k.lightness, k.saturation);
    c[0] = rgb.red;
    c[1] = rgb.green;
    c[2] = rgb.blue;
  }
  for (int i = 0; i < 3; ++i) pixel[i] = static_cast<std::uint8_t>(std::clamp(c[i], 0, 255));
  pixel[3] = 255;
}

}  // namespace tarnwick::testing
