#include "engine/shade_model.h"

#include <algorithm>

#include "imaging/hls_color.h"
#include "imaging/hsl255_color.h"

namespace tarnwick::testing {
namespace {

using Floats = std::array<float, 3>;
using Ints = std::array<int, 3>;

float Limited(float v) {
  return std::min(std::max(v, 0.0F), 255.0F);
}

Floats Channels(std::uint32_t word) {
  return {static_cast<float>(word & 255), static_cast<float>(word >> 8 & 255),
          static_cast<float>(word >> 16 & 255)};
}

Ints Truncated(const Floats& c) {
  return {static_cast<int>(c[0]), static_cast<int>(c[1]), static_cast<int>(c[2])};
}

// Tint (1) with the source's light, Boost (2) likewise.
float Mixed(int type, float light, float s, float c) {
  const float g = 1 - light;
  if (type == 2) return std::min(c * s * g / 255 + (c + s) * light, 255.0F);
  const float d = std::min(s, c) * g + light * s;
  return std::min(std::max(d, c) * light + d * g, 255.0F);
}

float ByChannel(int type, int source, float c) {
  const auto s = static_cast<float>(source);
  const int shade = static_cast<int>(c);
  const int lack = (source - 255) * 256;
  switch (type) {
    case 3:
      return static_cast<float>(
          static_cast<int>(source < 128 ? 2 * c * s / 255 : 255 - 2 * (255 - c) * (255 - s) / 255) &
          255);
    case 4:
      if (shade >= 128) return static_cast<float>(std::min(source * 256 / (511 - 2 * shade), 255));
      return shade == 0 ? 0 : static_cast<float>(std::max(255 + lack / (2 * shade), 0));
    case 6:
      return s * c / 255;
    case 7:
      return shade == 0 ? 0 : static_cast<float>(std::max(lack / shade + 255, 0) & 255);
    default:
      return c;
  }
}

Floats Colorized(const Ints& s, const Floats& c, float t, float m) {
  Ints source = s;
  Ints n = Truncated(c);
  RgbToHsl255(source[0], source[1], source[2]);
  RgbToHsl255(n[0], n[1], n[2]);
  n[2] = source[2];
  HslToRgb255(n[0], n[1], n[2]);
  Floats result{};
  for (std::size_t i = 0; i < 3; ++i) {
    const auto p = static_cast<float>(s[i]);
    const float mul = c[i] * p / 255;
    const float scr = 255 - (255 - p) * (255 - c[i]) / 255;
    const auto hue = static_cast<float>(n[i]);
    const float lit = t <= 0.5F ? mul * (2 * (0.5F - t)) + hue * (2 * t)
                                : scr * (2 * (t - 0.5F)) + hue * (2 * (1 - t));
    const float soft = ((255 - p) * mul + p * scr) / 255;
    result[i] = lit * m + soft * (1 - m);
  }
  return result;
}

Floats HueAndBrightness(const EffectSettings& s, Floats c) {
  const float hue = static_cast<float>(s.SurfaceHue) * 1.275F;
  float bright = static_cast<float>(s.SurfaceBrightness - 100);
  if (bright > 0) bright *= 1.5F;
  if (hue == 0 && bright == 0) return c;
  const Ints whole = Truncated(c);
  const HlsColor hls = RgbToHls(whole[0], whole[1], whole[2]);
  const RgbColor rgb =
      HlsToRgb(static_cast<int>(static_cast<float>(hls.hue) + hue), hls.lightness, hls.saturation);
  c = {static_cast<float>(rgb.red), static_cast<float>(rgb.green), static_cast<float>(rgb.blue)};
  for (float& v : c) v = Limited(static_cast<float>(static_cast<int>(v + bright)));
  return c;
}

}  // namespace

ModelShade ShadeByDefinition(const EffectSettings& s, int type, const Ints& source, float light) {
  const float t = std::min(std::max(light, 0.0F), 1.0F);
  const float m = static_cast<float>(s.SurfaceMidtone) / 100;
  const bool dark = t <= 0.65F;
  const float root = t / 0.65F;
  const float u = dark ? root * root : static_cast<float>(static_cast<double>(1 - t) / 0.35);
  const float wm = u * m;
  const float wo = (1 - u) * m;
  const float e = (1 - std::min(wo + wm, 1.0F)) * (t * 255);
  const Floats outer = Channels(dark ? s.SurfaceShadowColor : s.SurfaceHighlightColor);
  const Floats middle = Channels(s.SurfaceMidtoneColor);
  Floats c{};
  for (std::size_t i = 0; i < 3; ++i) c[i] = outer[i] * wo + middle[i] * wm + e;
  ModelShade shade{c, Truncated({Limited(c[0]), Limited(c[1]), Limited(c[2])})};

  const float sum = static_cast<float>(source[0] + source[1] + source[2]) / 765;
  for (std::size_t i = 0; i < 3; ++i) {
    shade.blended[i] = type == 1 || type == 2
                           ? Mixed(type, sum, static_cast<float>(source[i]), c[i])
                           : ByChannel(type, source[i], c[i]);
  }
  if (type == 0) shade.blended = Colorized(source, c, t, m);
  shade.blended = HueAndBrightness(s, shade.blended);
  if (s.SurfaceContrast == 100) return shade;
  const auto contrast = static_cast<float>(s.SurfaceContrast);
  const float f = contrast <= 100 ? contrast / 100 : (contrast - 100) / 30 + 1;
  for (float& v : shade.blended) v = Limited((v - 127) * f + 127);
  return shade;
}

}  // namespace tarnwick::testing
